#include "monitors/LatencyCallout.h"

namespace larkspan::monitors {

LatencyCallout LatencyCallout::of(const LatencyDataPoint& point, const platform::LocaleText& locale)
{
    return {.value = std::to_string(point.value) + " ms",
        .time = point.timestamp ? locale.dayAndTime(*point.timestamp) : std::string()};
}

std::string LatencyCallout::words() const
{
    return time.empty() ? value : value + ", " + time;
}

}  // namespace larkspan::monitors
