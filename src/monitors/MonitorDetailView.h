#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/records/Monitor.h"
#include "monitors/MonitorActions.h"
#include "monitors/MonitorPills.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/screens/RunningAction.h"
#include "presentation/shapes/ActionButton.h"
#include "presentation/shapes/Command.h"
#include "presentation/shapes/Fact.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::monitors {

/// One monitor, and what can be done to it. It works on a copy of the record, which it fetches anew after each action,
/// and hands that on to its owner. Main thread only; closing it stops no request.
class MonitorDetailView final : public support::Observable, public std::enable_shared_from_this<MonitorDetailView> {
public:
    struct Ports {
        platform::Executor& main;
        std::shared_ptr<MonitorActions> actions;
        const platform::LocaleText& locale;
        platform::LinkOpener& links;
    };

    struct Owner {
        std::function<void(const model::Monitor&)> onUpdate;
        /// Nobody knows whether an order took place: fetches the list anew.
        std::function<void()> lookAgain = {};
    };

    using DetailAction = MonitorAction;

    static constexpr std::string_view title = "Monitor Details";

    MonitorDetailView(Ports ports, model::Monitor monitor, Owner owner);

    /// The record as the screen shows it.
    support::Published<model::Monitor> currentMonitor;
    /// The request that runs, and the alert of the one that failed.
    const std::shared_ptr<presentation::RunningAction> action;

    /// Calls `observer` before anything changes that the screen shows.
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer);

    const std::string& id() const { return currentMonitor->id; }
    /// An action on the monitor runs, begun here or in its row.
    bool isBusy() const { return *action->isInProgress || ports_.actions->isRunning(id()); }
    /// The record has changed.
    void show(model::Monitor changed) { currentMonitor = std::move(changed); }

    std::vector<presentation::Pill> pills() const { return headerPills(*currentMonitor); }
    /// The group "Details"; what the record does not have is left out.
    std::vector<presentation::Fact> details() const;
    /// The group "Last Check": the day, and the time of day as its caption. All empty without.
    presentation::Fact lastCheck() const;

    /// In the order of the screen.
    std::vector<presentation::ActionButton> buttons() const;
    /// Does what the button of that id says; nothing if there is none or it is disabled.
    void press(std::string_view id);
    void perform(DetailAction wanted);

    /// Opens the monitor's URL; what is no web address is not opened.
    void openURL() const;

private:
    std::vector<presentation::Command<MonitorDetailView>> commands() const;
    static support::Task<void> carryOut(
        std::shared_ptr<MonitorDetailView> self, DetailAction wanted, std::shared_ptr<const void> mark);

    const Ports ports_;
    const std::function<void(const model::Monitor&)> onUpdate_;
};

}  // namespace larkspan::monitors
