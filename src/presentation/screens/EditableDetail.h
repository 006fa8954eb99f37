#pragma once

#include <string_view>

#include "presentation/screens/GuardedScreen.h"
#include "presentation/shapes/Confirmation.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// An opened record with an editor, and the question before the record is deleted. Main thread only; closing it cancels
/// no request.
class EditableDetail : public GuardedScreen {
public:
    const Confirmation deleteConfirmation;

    /// Whether the editor is open.
    support::Published<bool> isEditing{*this, false};
    /// Whether the question is shown if the record is to be deleted.
    support::Published<bool> showDeleteConfirmation{*this, false};

    /// The text of the button that closes the editor or, without an editor, the screen.
    std::string_view closeLabel() const { return *isEditing ? "Cancel" : "Close"; }

    /// Opens the editor; does nothing while a request runs.
    void beginEditing();
    bool hasUnsavedText() const final { return *isEditing && isEdited(); }

    /// Asks whether the record is to be deleted; does nothing while a request runs.
    void confirmDelete();
    void cancelDelete() { showDeleteConfirmation = false; }
    /// Deletes the record; called when the user has confirmed.
    void deleteRecord();

protected:
    EditableDetail(platform::Executor& main, Confirmation deletion, GuardedScreen::Owner owner);

    /// Closes the editor because the service has the edits.
    void closeEditor();

private:
    /// Sets the initial values of the editor.
    virtual void fillEditor() = 0;
    /// Whether the editor contains something that would be lost.
    virtual bool isEdited() const = 0;
    /// Deletes the record and closes the screen, which exists until the task has ended.
    virtual support::Task<void> remove() = 0;

    void leave() final;
};

}  // namespace larkspan::presentation
