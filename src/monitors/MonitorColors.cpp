#include "monitors/MonitorColors.h"

#include "support/IgnoringCase.h"

namespace larkspan::monitors {

using model::MonitorStatus;
using presentation::Tone;
using support::equalsIgnoringCase;

std::string_view monitorStatusIcon(MonitorStatus status)
{
    switch (status) {
    case MonitorStatus::operational: return "checkmark.circle.fill";
    case MonitorStatus::degraded: return "exclamationmark.triangle.fill";
    case MonitorStatus::down: return "xmark.circle.fill";
    case MonitorStatus::paused: return "pause.circle.fill";
    case MonitorStatus::unknown: break;
    }
    return "questionmark.circle";
}

Tone monitorStatusColor(MonitorStatus status)
{
    switch (status) {
    case MonitorStatus::operational: return Tone::green;
    case MonitorStatus::degraded: return Tone::orange;
    case MonitorStatus::down: return Tone::red;
    case MonitorStatus::paused: return Tone::secondary;
    case MonitorStatus::unknown: break;
    }
    return Tone::gray;
}

Tone trendColor(std::string_view trend)
{
    if (equalsIgnoringCase(trend, "up")) return Tone::green;
    return equalsIgnoringCase(trend, "down") ? Tone::red : Tone::blue;
}

std::string_view trendIcon(std::string_view trend)
{
    if (equalsIgnoringCase(trend, "up")) return "arrow.up.right";
    return equalsIgnoringCase(trend, "down") ? "arrow.down.right" : "arrow.right";
}

Tone regionStatusColor(std::string_view status)
{
    if (equalsIgnoringCase(status, "up")) return Tone::green;
    if (equalsIgnoringCase(status, "down")) return Tone::red;
    return equalsIgnoringCase(status, "degraded") ? Tone::orange : Tone::gray;
}

Tone responseTimeColor(double milliseconds)
{
    if (milliseconds < 300) return Tone::green;
    return milliseconds < 600 ? Tone::orange : Tone::red;
}

Tone uptimeColor(double percentage)
{
    return percentage >= 99.9 ? Tone::green : Tone::orange;
}

}  // namespace larkspan::monitors
