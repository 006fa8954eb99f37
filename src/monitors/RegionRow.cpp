#include "monitors/RegionRow.h"

#include "monitors/MonitorColors.h"
#include "presentation/NumberText.h"

namespace larkspan::monitors {

std::vector<RegionRow> regionRows(const model::MonitorMetricsWindow& metrics)
{
    std::vector<RegionRow> rows;
    if (!metrics.regionStates) return rows;
    rows.reserve(metrics.regionStates->size());
    for (const auto& region : *metrics.regionStates) {
        rows.push_back({.name = region.regionName.value_or(region.regionId),
            .average = presentation::fixedText(region.avgMs, 0) + "ms",
            .tone = regionStatusColor(region.status)});
    }
    return rows;
}

}  // namespace larkspan::monitors
