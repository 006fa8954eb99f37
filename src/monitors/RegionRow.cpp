#include "monitors/RegionRow.h"

#include <ranges>

#include "monitors/MonitorColors.h"
#include "presentation/text/InPart.h"
#include "presentation/text/NameText.h"
#include "presentation/text/NumberText.h"
#include "support/Capitalized.h"

namespace larkspan::monitors {

std::vector<RegionRow> regionRows(const model::MonitorMetricsWindow& metrics)
{
    std::vector<RegionRow> rows;
    if (!metrics.regionStates) return rows;
    for (const auto& region : std::views::take(*metrics.regionStates, presentation::mostLines)) {
        rows.push_back({.name = presentation::nameText(region.regionName.value_or(region.regionId)),
            .average = presentation::fixedText(region.avgMs, 0) + "ms",
            .tone = regionStatusColor(region.status),
            .state = region.status.empty() ? "Unknown" : support::capitalized(region.status)});
    }
    return rows;
}

std::string moreRegions(const model::MonitorMetricsWindow& metrics)
{
    return presentation::moreText(metrics.regionStates ? metrics.regionStates->size() : 0);
}

}  // namespace larkspan::monitors
