#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/MonitorEndpoints.h"
#include "model/records/StatusPage.h"
#include "monitors/StatusPageMonitorsViewModel.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/screens/ListScreen.h"
#include "presentation/screens/Opened.h"
#include "support/AfterChanges.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::monitors {

class MonitorDetailView;
class MonitorRowView;
struct MonitorRow;

/// The monitors of one page: their list, the opened parts of its rows, and the opened monitor. Main thread only.
class StatusPageMonitorsView final : public presentation::ListScreen,
                                     public std::enable_shared_from_this<StatusPageMonitorsView> {
public:
    struct Ports {
        platform::Executor& main;
        api::MonitorEndpoints& api;
        platform::CredentialStore& credentials;
        const platform::LocaleText& locale;
        platform::LinkOpener& links;
    };

    /// By the row's id; rows that were never opened have none.
    using RowViews = std::map<std::string, std::shared_ptr<MonitorRowView>, std::less<>>;

    StatusPageMonitorsView(Ports ports, model::StatusPage page);

    const model::StatusPage page;
    const std::shared_ptr<StatusPageMonitorsViewModel> viewModel;

    /// The monitor that is open over the list.
    presentation::Opened<MonitorDetailView> presentedMonitor{*this};

    std::vector<MonitorRow> rows() const;

    /// The rows that were opened; each exists as long as its monitor is in the list, and has its own observers.
    const RowViews& rowViews() const { return *rowViews_; }
    void toggleMetrics(const std::string& id);

    /// Performs the action of the button with this id in that row; does nothing while an action on its monitor runs.
    void press(const std::string& id, std::string_view button);

    presentation::FailureAlert* alert() const override { return &viewModel->alert; }

    /// Opens the monitor in that row; does nothing if it no longer exists.
    void openMonitor(const std::string& id);
    void closeMonitor();
    /// The screen of `presentedMonitor`; null without one.
    const std::shared_ptr<MonitorDetailView>& detail() const { return presentedMonitor.screen(); }

    bool isHeld() const override { return !viewModel->performingActions->empty(); }
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer) override;

private:
    presentation::FetchedRecords& fetched() const override { return *viewModel; }
    void forgetRowsThatLeft();
    static support::Task<void> perform(
        std::shared_ptr<StatusPageMonitorsView> self, support::Task<void> action, std::string monitorID);

    const Ports ports_;
    support::Published<RowViews> rowViews_{*this};
    const support::AfterChanges loads_;
};

}  // namespace larkspan::monitors
