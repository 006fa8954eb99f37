#include "monitors/MetricBadge.h"

#include "monitors/MonitorColors.h"
#include "presentation/text/NumberText.h"
#include "support/Capitalized.h"

namespace larkspan::monitors {

using presentation::fixedText;
using presentation::Tone;

MetricBadge TrendBadge::drawn() const
{
    return {.icon = std::string(trendIcon(trend)),
        .value = support::capitalized(trend),
        .label = label,
        .color = trendColor(trend),
        .isTrend = true};
}

std::vector<MetricBadge> metricBadges(const model::MonitorMetricsWindow& metrics)
{
    std::vector<MetricBadge> badges;
    if (metrics.avgMs) {
        badges.push_back(
            {.icon = "clock", .value = fixedText(*metrics.avgMs, 0) + "ms", .label = "Avg", .color = Tone::blue});
    }
    if (metrics.uptimePercentage) {
        badges.push_back({.icon = "arrow.up.arrow.down",
            .value = fixedText(*metrics.uptimePercentage, 1) + "%",
            .label = "Uptime",
            .color = uptimeColor(*metrics.uptimePercentage)});
    }
    if (metrics.responseTimeTrend) {
        badges.push_back(TrendBadge{.trend = *metrics.responseTimeTrend, .label = "RT"}.drawn());
    }
    return badges;
}

}  // namespace larkspan::monitors
