#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "api/MonitorEndpoints.h"
#include "model/records/MonitorMetricsWindow.h"
#include "monitors/LatencyGraph.h"
#include "monitors/MetricRow.h"
#include "monitors/RegionRow.h"
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

    support::Published<std::optional<model::MonitorMetricsWindow>> metrics{*this};
    support::Published<bool> showingMetrics{*this, false};
    support::Published<bool> isLoadingMetrics{*this, false};
    support::Published<std::optional<std::string>> metricsLoadError{*this};

    /// Observed separately, since it changes often and the list does not show it.
    struct Selection final : support::Observable {
        support::Published<std::optional<int>> selectedLatencyIndex{*this};
    };
    Selection selection;

    /// Opens or closes the metrics; does nothing while they are being loaded.
    void toggleMetrics();
    /// Fetches the metrics again after a failure.
    void retry();

    bool showsPanel() const { return *showingMetrics && !*isLoadingMetrics && metrics->has_value(); }
    /// Shown in place of the panel: that it is being loaded, or why it could not be.
    presentation::Marker instead() const;
    bool offersRetry() const { return *showingMetrics && !*isLoadingMetrics && !metrics->has_value(); }

    /// The panel's graph; without a curve if there is none to show.
    LatencyGraph latencyGraph() const;
    /// Selects the sample that is nearest to a place on the graph's axis of indexes.
    void selectLatency(double position);

    /// The panel's figures and regions; empty without metrics.
    std::vector<MetricRow> figures() const;
    std::vector<RegionRow> regions() const;
    /// The text below the regions: how many more there are; empty for none.
    std::string moreRegions() const;

private:
    void load();
    static support::Task<void> loadMetrics(std::shared_ptr<MonitorRowView> self);

    std::vector<LatencyDataPoint> latencyPoints() const;

    const Ports ports_;
    const std::string monitorID_;
};

}  // namespace larkspan::monitors
