#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "presentation/forms/ComponentSelection.h"
#include "presentation/screens/GuardedScreen.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// The form of a new event of one page: its texts, what it affects, and the request that creates it. It keeps the typed
/// text until the service has it. Main thread only.
class EventForm : public GuardedScreen {
public:
    static constexpr const char* busyText = "Creating...";

    const std::string pageId;

    support::Published<std::string> title{*this};
    support::Published<std::string> message{*this};
    const std::shared_ptr<ComponentSelection> selection;

    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer) override;

    /// Called when the sheet opens: fetches the choices.
    void appear() { selection->load(); }

    virtual bool isSelectionComplete() const = 0;

    bool isSaveEnabled() const override;
    void save();

    bool hasUnsavedText() const override;
    bool isCloseEnabled() const override { return isIdle(); }

protected:
    EventForm(ComponentSelection::Ports ports, std::string pageId, ComponentSelection::Words selectionWords,
        GuardedScreen::Owner owner);

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
};

}  // namespace larkspan::presentation
