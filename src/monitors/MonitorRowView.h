#pragma once

#include <memory>
#include <optional>
#include <string>

#include "api/MonitorEndpoints.h"
#include "model/records/MonitorMetricsWindow.h"
#include "monitors/MetricsPanel.h"
#include "platform/Executor.h"
#include "platform/LocaleText.h"
#include "presentation/shapes/Marker.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::monitors {

/// The opened part of one row of the list: the monitor's metrics for a day, fetched when first opened and kept from
/// then on. Main thread only; a running fetch may outlive the row.
class MonitorRowView final : public support::Observable, public std::enable_shared_from_this<MonitorRowView> {
public:
    static constexpr const char* range = "24h";

    struct Ports {
        platform::Executor& main;
        api::MonitorEndpoints& api;
        const platform::LocaleText& locale;
    };

    MonitorRowView(Ports ports, std::string monitorID);

    support::Published<bool> showingMetrics{*this, false};
    support::Published<bool> isLoadingMetrics{*this, false};
    support::Published<std::optional<std::string>> metricsLoadError{*this};

    /// The metrics and what is shown of them; null until they have arrived.
    const std::shared_ptr<MetricsPanel>& panel() const { return *panel_; }
    /// Makes the panel of metrics that have arrived.
    void land(model::MonitorMetricsWindow metrics);

    /// Opens or closes the metrics; does nothing while they are being loaded.
    void toggleMetrics();
    /// Fetches the metrics again after a failure.
    void retry();

    bool showsPanel() const { return *showingMetrics && !*isLoadingMetrics && panel(); }
    /// Shown in place of the panel: that it is being loaded, or why it could not be.
    presentation::Marker instead() const;
    bool offersRetry() const { return *showingMetrics && !*isLoadingMetrics && !panel(); }

private:
    void load();
    static support::Task<void> loadMetrics(std::shared_ptr<MonitorRowView> self);

    const Ports ports_;
    const std::string monitorID_;
    support::Published<std::shared_ptr<MetricsPanel>> panel_{*this};
};

}  // namespace larkspan::monitors
