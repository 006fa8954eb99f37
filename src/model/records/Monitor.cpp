#include "model/records/Monitor.h"

#include "model/json/Decoding.h"
#include "support/IgnoringCase.h"

namespace larkspan::model {

namespace {

struct StateRow {
    std::string_view state;
    MonitorStatus status;
};

constexpr StateRow statuses[] = {
    {"up", MonitorStatus::operational},
    {"operational", MonitorStatus::operational},
    {"down", MonitorStatus::down},
    {"degraded", MonitorStatus::degraded},
    {"partial", MonitorStatus::degraded},
    {"partial-outage", MonitorStatus::degraded},
    {"paused", MonitorStatus::paused},
};

MonitorStatus statusOf(std::string_view state)
{
    for (const auto& row : statuses) {
        if (support::equalsIgnoringCase(state, row.state)) return row.status;
    }
    return MonitorStatus::unknown;
}

}  // namespace

/// A monitor is not paused unless the service says so.
void Monitor::readPause(Monitor& monitor, const KeyedValue& enabled)
{
    monitor.isPaused = enabled.optional<bool>() == false;
}

/// The state of a paused monitor is ignored, whatever its type.
void Monitor::deriveStatus(Monitor& monitor, const KeyedValue& state)
{
    if (monitor.isPaused)
        monitor.status = MonitorStatus::paused;
    else
        monitor.status = statusOf(state.optional<std::string_view>().value_or(""));
}

}  // namespace larkspan::model
