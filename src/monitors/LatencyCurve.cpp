#include "monitors/LatencyCurve.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace larkspan::monitors {

namespace {

constexpr double intervals = 5;

/// The nearest by ratio of 1, 2 or 5 times a power of ten.
double roundStep(double step)
{
    const double power = std::pow(10, std::floor(std::log10(step)));
    const double ratio = step / power;
    if (ratio >= std::sqrt(50)) return 10 * power;
    if (ratio >= std::sqrt(10)) return 5 * power;
    return ratio >= std::sqrt(2) ? 2 * power : power;
}

}  // namespace

LatencyDomain latencyDomain(const std::vector<LatencyDataPoint>& points)
{
    double least = 0;
    double most = 0;
    for (const auto& point : points) {
        least = std::min(least, static_cast<double>(point.value));
        most = std::max(most, static_cast<double>(point.value));
    }
    if (least == most) return {};
    const double step = roundStep((most - least) / intervals);
    return {std::floor(least / step) * step, std::ceil(most / step) * step};
}

std::shared_ptr<const LatencyCurve> LatencyCurve::of(std::vector<LatencyDataPoint> points)
{
    const auto domain = latencyDomain(points);
    return std::make_shared<const LatencyCurve>(LatencyCurve{std::move(points), domain});
}

}  // namespace larkspan::monitors
