#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "api/MonitorEndpoints.h"
#include "model/records/StatusPage.h"
#include "monitors/MonitorDetailView.h"
#include "monitors/MonitorRow.h"
#include "monitors/MonitorRowView.h"
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

/// The monitors of one page: their list, what is open in its rows, and the one that is opened. Main thread only.
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

    /// By the row's id; a row that was never opened has none.
    using RowViews = std::map<std::string, std::shared_ptr<MonitorRowView>, std::less<>>;

    StatusPageMonitorsView(Ports ports, model::StatusPage page);

    const model::StatusPage page;
    const std::shared_ptr<StatusPageMonitorsViewModel> viewModel;

    /// The monitor that is open over the list.
    presentation::Opened<MonitorDetailView> presentedMonitor{*this};

    std::vector<MonitorRow> rows() const;

    /// The rows that were opened; one stays as it is for as long as its monitor is in the list. What changes in it, it
    /// tells itself.
    const RowViews& rowViews() const { return *rowViews_; }
    void toggleMetrics(const std::string& id);

    /// Does what the button of that id says in that row; nothing while an action on its monitor runs.
    void press(const std::string& id, std::string_view button);

    presentation::FailureAlert* alert() const override { return &viewModel->alert; }

    /// Opens the monitor of that row; nothing if it has gone meanwhile.
    void openMonitor(const std::string& id);
    void closeMonitor();
    /// Of `presentedMonitor`; null without one.
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
    const presentation::AfterChanges loads_;
};

}  // namespace larkspan::monitors
