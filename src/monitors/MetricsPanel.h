#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/records/MonitorMetricsWindow.h"
#include "monitors/LatencyCurve.h"
#include "monitors/MetricRow.h"
#include "monitors/RegionRow.h"
#include "monitors/SelectedLatency.h"
#include "platform/LocaleText.h"
#include "support/Observable.h"

namespace larkspan::monitors {

/// A monitor's metrics of a day as they are shown below its row. All of it is made once, when the metrics are there;
/// the selection alone changes, and is told apart from the row, since its steps are many. Main thread only.
class MetricsPanel final : public support::Observable {
public:
    MetricsPanel(model::MonitorMetricsWindow window, const platform::LocaleText& locale);

    const model::MonitorMetricsWindow metrics;
    /// Null where there is no graph to show.
    const std::shared_ptr<const LatencyCurve> curve;
    const std::vector<MetricRow> figures;
    const std::vector<RegionRow> regions;
    /// Below the regions: how many more there are; empty for none.
    const std::string moreRegions;

    support::Published<std::optional<int>> selectedLatencyIndex{*this};

    /// Selects the sample that is nearest to a place on the graph's axis of indexes.
    void selectLatency(double position);
    std::optional<SelectedLatency> selectedLatency() const;

private:
    const platform::LocaleText& locale_;
};

}  // namespace larkspan::monitors
