#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "api/MonitorEndpoints.h"
#include "model/StatusPage.h"
#include "monitors/MonitorDetailView.h"
#include "monitors/MonitorRow.h"
#include "monitors/MonitorRowView.h"
#include "monitors/StatusPageMonitorsViewModel.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/Content.h"
#include "presentation/Placeholder.h"
#include "support/Observable.h"

namespace larkspan::monitors {

/// The monitors of one page: their list, what is open in its rows, and the one that is opened. Main thread only.
class StatusPageMonitorsView final : public support::Observable,
                                     public std::enable_shared_from_this<StatusPageMonitorsView> {
public:
    struct Ports {
        platform::Executor& main;
        api::MonitorEndpoints& monitors;
        platform::CredentialStore& credentials;
        const platform::LocaleText& locale;
        platform::LinkOpener& links;
    };

    /// By the monitor's id; a row that was never opened has none.
    using RowViews = std::map<std::string, std::shared_ptr<MonitorRowView>, std::less<>>;

    StatusPageMonitorsView(Ports ports, model::StatusPage page);

    const model::StatusPage page;
    const std::shared_ptr<StatusPageMonitorsViewModel> viewModel;

    /// The monitor that stands in front of the list, as it was when it was opened.
    support::Published<std::optional<model::Monitor>> presentedMonitor{*this};

    /// Calls `observer` before anything changes that the list shows, or what stands in front of it. What changes in a
    /// row that is open, that row tells itself.
    [[nodiscard]] std::array<support::Subscription, 2> observe(const std::function<void()>& observer);

    /// The list came into sight for the first time.
    void appear() { viewModel->loadMonitors(); }
    /// The user asked for a load. That is worth a prompt of the credential store.
    void refresh();

    presentation::Content content() const { return viewModel->content(); }
    /// What stands in place of the list; all empty while there is one.
    presentation::Placeholder placeholder() const;
    std::vector<MonitorRow> rows() const;

    /// The rows that were opened; one stays as it is for as long as its monitor is in the list.
    const RowViews& rowViews();
    void toggleMetrics(const std::string& id);

    /// Does what the button of that id says in that row; nothing while an action on its monitor runs.
    void press(const std::string& id, std::string_view button);

    /// The words of the alert; empty while there is none.
    std::string alert() const;
    void dismissAlert() { viewModel->showErrorAlert = false; }

    /// Opens the monitor of that row; nothing if it has gone meanwhile.
    void openMonitor(const std::string& id);
    void closeMonitor();
    /// Of `presentedMonitor`; null without one.
    const std::shared_ptr<MonitorDetailView>& detail() const { return detail_; }

private:
    const model::Monitor* monitorOf(const std::string& id) const;

    const Ports ports_;
    support::Published<RowViews> rowViews_{*this};
    std::shared_ptr<MonitorDetailView> detail_;
};

}  // namespace larkspan::monitors
