#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "presentation/forms/ComponentSelection.h"
#include "presentation/screens/GuardedScreen.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// The form of a new event of one page: its texts, what it affects, and the request that creates it. It keeps the typed
/// text until the service has it. Main thread only.
class EventForm : public GuardedScreen {
public:
    /// The texts of one kind of event for the choice of what it affects.
    struct SelectionWords {
        /// The entry for no monitor.
        std::string_view noMonitor;
        std::string_view hintForPage;
        std::string_view hintForComponent;
        ComponentSelection::ComponentFailure failure;
    };

    static constexpr const char* busyText = "Creating...";

    const std::string pageId;

    support::Published<std::string> title{*this};
    support::Published<std::string> message{*this};
    const std::shared_ptr<ComponentSelection> selection;

    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer) override;

    /// Called when the sheet opens: fetches the choices.
    void appear() { selection->load(); }

    std::vector<Choice> monitorChoices() const { return selection->monitorChoices(std::string(words_.noMonitor)); }
    /// The hint about the choice of a group, or about the next choice.
    std::string_view selectionHint() const;
    virtual bool isSelectionComplete() const = 0;

    bool isSaveEnabled() const override;
    void save();

    bool hasUnsavedText() const override;
    bool isCloseEnabled() const override { return isIdle(); }

protected:
    EventForm(ComponentSelection::Ports ports, std::string pageId, SelectionWords words, GuardedScreen::Owner owner);

    virtual bool canBeSent() const;
    /// Sends the request; the form exists until the task has ended.
    virtual support::Task<void> create() = 0;

    /// Awaits the event that `creating` returns, passes it to `onCreated` and closes the sheet.
    template <typename Event>
    static support::Task<void> send(
        std::shared_ptr<EventForm> self, support::Task<Event> creating, std::function<void(const Event&)> onCreated)
    {
        const Event created = co_await std::move(creating);
        onCreated(created);
        self->dismiss();
    }

private:
    const SelectionWords words_;
};

}  // namespace larkspan::presentation
