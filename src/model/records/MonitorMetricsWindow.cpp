#include "model/records/MonitorMetricsWindow.h"

#include "model/json/Decoding.h"

namespace larkspan::model {

namespace {

std::string_view wordFor(double change)
{
    constexpr double notable = 0.001;
    if (change > notable) return "up";
    if (change < -notable) return "down";
    return "stable";
}

std::optional<std::string> trendIn(const KeyedValue& value)
{
    if (auto word = value.ifReadable<std::string>()) return word;
    const auto change = value.ifReadable<double>();
    if (!change) return std::nullopt;
    return std::string(wordFor(*change));
}

}  // namespace

void MonitorMetricsWindow::readUptimeTrend(MonitorMetricsWindow& window, const KeyedValue& uptimeTrend)
{
    window.uptimeTrend = trendIn(uptimeTrend);
}

void MonitorMetricsWindow::readResponseTimeTrend(MonitorMetricsWindow& window, const KeyedValue& responseTimeTrend)
{
    window.responseTimeTrend = trendIn(responseTimeTrend);
}

}  // namespace larkspan::model
