#pragma once

#include <optional>
#include <string>
#include <vector>

#include "account/Monitor.h"

namespace larkspan::simulator {

/// The results of a monitor's checks over a span of time.
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
    /// Compared with the previous span, in percentage points.
    double uptimeChange = 0;
    /// The span's second half compared with its first, in percent.
    double responseTimeChange = 0;
    std::optional<std::string> state;
    support::Time updated;
    std::vector<Sample> samples;
    std::vector<Region> regions;
    double apdex = 0;
    double apdexChange = 0;
};

/// The metrics of the `span` that ends at `now`, or for a paused monitor at its pause: response times that vary over
/// the day and from hour to hour, with outliers, and with trouble in the last hours if the monitor has any. As time
/// passes, samples keep their values.
MonitorMetrics metricsOf(const Monitor& monitor, std::chrono::minutes span, support::Time now);

}  // namespace larkspan::simulator
