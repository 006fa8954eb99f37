#pragma once

#include <optional>
#include <string>
#include <vector>

#include "account/Monitor.h"

namespace larkspan::simulator {

/// What the checks of a monitor found over some span of time.
struct MonitorMetrics {
    struct Sample {
        int milliseconds;
        support::Time time;
    };

    struct Region {
        std::string id;
        std::optional<std::string> name;
        std::string state;
        support::Time updated;
        double averageMs;
    };

    double averageMs = 0;
    double uptimePercentage = 0;
    /// Against the span before, in percentage points.
    double uptimeChange = 0;
    /// Of the span's second half against its first, in percent.
    double responseTimeChange = 0;
    std::optional<std::string> state;
    support::Time updated;
    std::vector<Sample> samples;
    std::vector<Region> regions;
    double apdex = 0;
    double apdexChange = 0;
};

/// The figures of the `span` up to `now`, or for a paused monitor up to its pause: response times that rise and fall
/// with the day and from hour to hour, with outliers, and with trouble in the last hours if the monitor is in any. As
/// time passes the samples move on and stay what they are.
MonitorMetrics metricsOf(const Monitor& monitor, std::chrono::minutes span, support::Time now);

}  // namespace larkspan::simulator
