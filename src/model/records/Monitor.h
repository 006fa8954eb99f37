#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

#include "model/json/WireField.h"
#include "model/records/MonitorStatus.h"
#include "model/records/MonitorType.h"
#include "support/Time.h"

namespace larkspan::model {

/// A check that the service runs against a target.
struct Monitor {
    WIRE_FIELD(std::string, id, identifier);
    WIRE_FIELD(MonitorType, type, otherwise(MonitorType::custom));
    WIRE_FIELD(std::string, name);
    /// Unchanged, whether it is a URL or not.
    WIRE_FIELD(std::optional<std::string>, url, key("target"));
    /// May be `paused` while `isPaused` is false, if the service reports this state for an enabled monitor.
    MonitorStatus status = MonitorStatus::unknown;
    bool isPaused = false;
    /// Always absent: the service reports no such time.
    std::optional<support::Time> lastCheckTime{};
    WIRE_FIELD(std::optional<support::Time>, configUpdatedAt, key("updatedAt"));
    WIRE_FIELD(std::optional<std::int64_t>, intervalSeconds);
    WIRE_FIELD(std::optional<std::string>, statusPageId);

    static void readPause(Monitor& monitor, const KeyedValue& enabled);
    static void deriveStatus(Monitor& monitor, const KeyedValue& state);
    static constexpr std::tuple derivations{
        derived("enabled", &readPause),
        derived("state", &deriveStatus),
    };

    bool operator==(const Monitor&) const = default;
};

}  // namespace larkspan::model
