#pragma once

#include <string_view>

#include "presentation/screens/GuardedScreen.h"
#include "presentation/shapes/Confirmation.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// A record that was opened, with an editor in its place and the question before it is deleted. Main thread only;
/// closing it stops no request.
class EditableDetail : public GuardedScreen {
public:
    const Confirmation deleteConfirmation;

    /// The editor is open.
    support::Published<bool> isEditing{*this, false};
    /// The question is up whether the record is to be deleted.
    support::Published<bool> showDeleteConfirmation{*this, false};

    /// The button that leaves the editor or, outside it, the screen.
    std::string_view closeLabel() const { return *isEditing ? "Cancel" : "Close"; }

    /// Opens the editor; nothing while a request runs.
    void beginEditing();
    bool hasUnsavedText() const final { return *isEditing && isEdited(); }

    /// Asks whether the record is to be deleted; nothing while a request runs.
    void confirmDelete();
    void cancelDelete() { showDeleteConfirmation = false; }
    /// The user confirmed the deletion.
    void deleteRecord();

protected:
    EditableDetail(platform::Executor& main, Confirmation deletion, GuardedScreen::Owner owner);

    /// What was edited is the service's now.
    void closeEditor();

private:
    /// Puts into the editor what it opens with.
    virtual void fillEditor() = 0;
    /// The editor holds something that the user would miss.
    virtual bool isEdited() const = 0;
    /// Deletes the record and closes the screen, which is there until that has ended.
    virtual support::Task<void> remove() = 0;

    void leave() final;
};

}  // namespace larkspan::presentation
