#pragma once

#include <optional>
#include <string>

#include "support/Time.h"

namespace larkspan::simulator {

/// The form of a monitor's metrics on the wire, which may differ from the documented one.
enum class MetricsForm {
    words,
    /// Trends are signed numbers.
    numbers,
    /// Some figures are missing.
    gaps,
    /// Some figures have another type.
    malformed,
    /// Points without latency figures.
    noLatency,
    /// An empty window.
    empty,
    /// No window.
    missing,
};

/// A check of some target. `state` is sent as it is, even if no such state exists.
struct Monitor {
    bool isPaused() const { return enabled == false; }

    /// An id of digits only is sent as a number, as the service does.
    std::string id;
    std::string name;
    std::optional<std::string> type;
    std::optional<std::string> target;
    /// Absent if the service does not say; the monitor runs then.
    std::optional<bool> enabled;
    std::optional<std::string> state;
    std::optional<support::Time> createdAt;
    std::optional<support::Time> updatedAt;
    std::optional<int> intervalSeconds;
    std::optional<std::string> statusPageId;
    std::optional<std::string> componentId;
    MetricsForm metricsForm = MetricsForm::words;
    /// In each window of its metrics.
    int samplesPerWindow = 96;
};

}  // namespace larkspan::simulator
