#include "monitors/MetricRow.h"

#include <utility>

#include "monitors/MonitorColors.h"
#include "presentation/text/NumberText.h"
#include "support/Capitalized.h"

namespace larkspan::monitors {

using presentation::fixedText;
using presentation::Tone;

namespace {

MetricRow trendRow(std::string label, const std::string& trend)
{
    return {.label = std::move(label), .value = support::capitalized(trend), .valueColor = trendColor(trend)};
}

}  // namespace

std::vector<MetricRow> metricRows(const model::MonitorMetricsWindow& metrics)
{
    std::vector<MetricRow> rows;
    if (metrics.avgMs) {
        rows.push_back({.label = "Avg Response",
            .value = fixedText(*metrics.avgMs, 0) + " ms",
            .valueColor = responseTimeColor(*metrics.avgMs)});
    }
    if (metrics.uptimePercentage) {
        rows.push_back({.label = "Uptime",
            .value = fixedText(*metrics.uptimePercentage, 2) + "%",
            .valueColor = uptimeColor(*metrics.uptimePercentage)});
    }
    if (metrics.responseTimeChange) {
        rows.push_back({.label = "RT Change",
            .value = presentation::signedText(*metrics.responseTimeChange, 1) + "%",
            .valueColor = *metrics.responseTimeChange > 0 ? Tone::red : Tone::green});
    }
    if (metrics.responseTimeTrend) rows.push_back(trendRow("RT Trend", *metrics.responseTimeTrend));
    if (metrics.uptimeTrend) rows.push_back(trendRow("Uptime Trend", *metrics.uptimeTrend));
    return rows;
}

}  // namespace larkspan::monitors
