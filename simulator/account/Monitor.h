#pragma once

#include <optional>
#include <string>

#include "support/Time.h"

namespace larkspan::simulator {

/// How the service words a monitor's metrics, which is not always the way that it should.
enum class MetricsForm {
    words,
    /// Trends are signed numbers.
    numbers,
    /// Some figures are left out.
    gaps,
    /// Some figures are of another type.
    malformed,
    /// There are points, and no latency beside them.
    noLatency,
    /// There is a window, and nothing in it.
    empty,
    /// There is no window.
    missing,
};

/// A check of some target. `state` is the word sent, whatever it is.
struct Monitor {
    bool isPaused() const { return enabled == false; }

    /// Digits alone travel as a number, as the service's own ids do.
    std::string id;
    std::string name;
    std::optional<std::string> type;
    std::optional<std::string> target;
    /// Absent where the service does not say; the monitor runs then.
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
