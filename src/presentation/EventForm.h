#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "presentation/ComponentSelection.h"
#include "presentation/RunningAction.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// The form of a new event of one page: its words, what it affects, and the request that makes it. It keeps what was
/// typed until the service has it. Main thread only.
class EventForm : public support::Observable, public std::enable_shared_from_this<EventForm> {
public:
    /// What one kind of event says of the choice of what it affects.
    struct SelectionWords {
        /// The monitor that is none.
        std::string_view noMonitor;
        std::string_view hintForPage;
        std::string_view hintForComponent;
        ComponentSelection::ComponentFailure failure;
    };

    static constexpr const char* busyText = "Creating...";

    virtual ~EventForm() = default;

    const std::string pageId;

    support::Published<std::string> title{*this};
    support::Published<std::string> message{*this};
    /// The question is up whether what has been typed may be lost.
    support::Published<bool> showDiscardConfirmation{*this, false};
    /// The request that runs, and the alert of whatever failed last.
    const std::shared_ptr<RunningAction> action;
    const std::shared_ptr<ComponentSelection> selection;

    /// Calls `observer` before anything changes that the form shows.
    [[nodiscard]] virtual support::Subscriptions observe(const std::function<void()>& observer);

    /// The sheet came up: fetches what there is to choose from.
    void appear() { selection->load(); }

    std::vector<Choice> monitorChoices() const { return selection->monitorChoices(std::string(words_.noMonitor)); }
    /// What the choice of a group is about, or is to be followed by.
    std::string_view selectionHint() const;
    virtual bool isSelectionComplete() const = 0;

    bool isSaveEnabled() const;
    void save();
    bool isCancelEnabled() const { return !*action->isInProgress; }
    void cancel();

    virtual bool hasUnsavedText() const;
    /// Escape, or a press outside: cancels, but asks first where text would be lost.
    void requestClose();
    void keepEditing() { showDiscardConfirmation = false; }
    void discardChanges();

protected:
    /// `dismiss` closes the sheet.
    EventForm(ComponentSelection::Ports ports, std::string pageId, SelectionWords words, std::function<void()> dismiss);

    /// What has been filled in is worth a request.
    virtual bool canBeSent() const;
    /// Sends the request; the form is there until it has ended.
    virtual support::Task<void> create() = 0;

    void dismiss() const { dismiss_(); }

private:
    const SelectionWords words_;
    const std::function<void()> dismiss_;
};

}  // namespace larkspan::presentation
