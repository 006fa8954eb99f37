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

/// One monitor and its actions. It has a copy of the record, which it fetches again after each action and passes to its
/// owner. Main thread only; closing it cancels no request.
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
        /// Called when it is unknown whether a write took effect: fetches the list again.
        std::function<void()> reloadList = {};
    };

    using DetailAction = MonitorAction;

    static constexpr std::string_view title = "Monitor Details";

    MonitorDetailView(Ports ports, model::Monitor monitor, Owner owner);

    /// The shown record.
    support::Published<model::Monitor> currentMonitor;
    /// The running request, and the alert of a failed one.
    const std::shared_ptr<presentation::RunningAction> action;

    /// Calls `observer` before anything that the screen shows changes.
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer);

    const std::string& id() const { return currentMonitor->id; }
    /// An action on the monitor runs, begun here or in its row.
    bool isBusy() const { return *action->isInProgress || ports_.actions->isRunning(id()); }
    /// The record has changed.
    void show(model::Monitor changed) { currentMonitor = std::move(changed); }

    std::vector<presentation::Pill> pills() const { return headerPills(*currentMonitor); }
    /// The group "Details"; missing values are left out.
    std::vector<presentation::Fact> details() const;
    /// The group "Last Check": the day, and the time of day as its caption. Empty without a check.
    presentation::Fact lastCheck() const;

    /// In the order of the screen.
    std::vector<presentation::ActionButton> buttons() const;
    /// Performs the action of the button with this id; does nothing if there is none or it is disabled.
    void press(std::string_view id);
    void perform(DetailAction wanted);

    /// Opens the monitor's URL; any other than a web address is not opened.
    void openURL() const;

private:
    std::vector<presentation::Command<MonitorDetailView>> commands() const;
    static support::Task<void> carryOut(
        std::shared_ptr<MonitorDetailView> self, DetailAction wanted, std::shared_ptr<const void> mark);

    const Ports ports_;
    const std::function<void(const model::Monitor&)> onUpdate_;
};

}  // namespace larkspan::monitors
