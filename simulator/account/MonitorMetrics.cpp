#include "account/MonitorMetrics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <numeric>
#include <span>

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;

/// In each period of this length at most one sample is an outlier, however many samples there are.
constexpr auto timeOfAnOutlier = 15min;

struct Place {
    const char* id;
    const char* name;
    double distance;
};

constexpr std::array<Place, 4> places{{{"eu-west", "Europe (Dublin)", 0.8},
    {"us-east", "North America (Virginia)", 1.1}, {"ap-south", "Asia (Mumbai)", 1.6}, {"sa-east", nullptr, 1.9}}};

/// Repeatable random numbers from 0 to 1, different for each monitor.
class Dice {
public:
    explicit Dice(std::string_view id)
    {
        for (const char character : id) seed_ = (seed_ ^ static_cast<unsigned char>(character)) * 0x100000001B3u;
    }

    double throwOf(std::int64_t number) const
    {
        auto bits = seed_ + static_cast<std::uint64_t>(number) * 0x9E3779B97F4A7C15u;
        bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9u;
        bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBu;
        return static_cast<double>((bits ^ (bits >> 31)) >> 11) * 0x1.0p-53;
    }

private:
    std::uint64_t seed_ = 0xCBF29CE484222325u;
};

double rounded(double value, double steps)
{
    return std::round(value * steps) / steps;
}

/// The factor by which answers take longer in trouble.
double troubleOf(const Monitor& monitor)
{
    if (monitor.state == "down") return 6;
    return monitor.state == "degraded" ? 2.4 : 1;
}

double partOfDay(support::Time time)
{
    const auto sinceMidnight = time - std::chrono::floor<std::chrono::days>(time);
    return std::chrono::duration<double, std::ratio<86'400>>(sinceMidnight).count();
}

/// Neighbouring samples are similar: a random value for each hour, interpolated in between.
double driftAt(support::Time time, const Dice& dice)
{
    const auto hour = std::chrono::floor<std::chrono::hours>(time);
    const auto number = hour.time_since_epoch().count();
    const double part = std::chrono::duration<double, std::ratio<3'600>>(time - hour).count();
    const auto chanceOf = [&dice](std::int64_t ofHour) { return dice.throwOf(-1'000 - ofHour); };
    return 0.88 + 0.24 * std::lerp(chanceOf(number), chanceOf(number + 1), part);
}

double outlierAt(std::int64_t number, support::Time::duration step, const Dice& dice)
{
    const auto samples = std::max<std::int64_t>(1, support::Time::duration(timeOfAnOutlier) / step);
    const auto group = -1'000'000 - number / samples;
    const bool isIt = number % samples == static_cast<std::int64_t>(dice.throwOf(group) * 1'000) % samples;
    const double chance = dice.throwOf(group - 1'000'000'000);
    return isIt && chance > 0.96 ? 1.8 + 30 * (chance - 0.96) : 1;
}

std::vector<MonitorMetrics::Sample> samplesOf(
    const Monitor& monitor, const Dice& dice, support::Time::duration step, support::Time end)
{
    const double ordinary = 40 + 360 * dice.throwOf(-1);
    const auto last = end.time_since_epoch() / step;
    std::vector<MonitorMetrics::Sample> samples;
    for (auto number = last - monitor.samplesPerWindow + 1; number <= last; ++number) {
        const support::Time time(number * step);
        const double wave = 1 + 0.25 * std::sin(2 * std::numbers::pi * (partOfDay(time) - 0.25));
        const double jitter = 0.94 + 0.12 * dice.throwOf(number);
        const double trouble = end - time < 2h ? troubleOf(monitor) : 1;
        const double slowness = driftAt(time, dice) * jitter * outlierAt(number, step, dice);
        samples.push_back({static_cast<int>(ordinary * wave * slowness * trouble), time});
    }
    return samples;
}

using Samples = std::span<const MonitorMetrics::Sample>;

double averageOf(Samples samples)
{
    const auto sum = std::accumulate(samples.begin(), samples.end(), 0.0,
        [](double total, const MonitorMetrics::Sample& sample) { return total + sample.milliseconds; });
    return sum / static_cast<double>(samples.size());
}

/// Users are satisfied up to 300 ms, and tolerate up to four times that.
double apdexOf(Samples samples)
{
    double content = 0;
    for (const auto& sample : samples)
        content += sample.milliseconds <= 300 ? 1 : sample.milliseconds <= 1'200 ? 0.5 : 0;
    return content / static_cast<double>(samples.size());
}

double uptimeOf(const Monitor& monitor, const Dice& dice)
{
    const double lost = 0.12 * dice.throwOf(-2);
    if (monitor.state == "down") return 97.4 - lost;
    return monitor.state == "degraded" ? 99.6 - lost : 100 - lost;
}

std::vector<MonitorMetrics::Region> regionsOf(
    const Monitor& monitor, const Dice& dice, double average, support::Time end)
{
    const auto count = 2 + static_cast<std::size_t>(3 * dice.throwOf(-3));
    std::vector<MonitorMetrics::Region> regions;
    for (std::size_t index = 0; index < count; ++index) {
        const auto& place = places[index];
        const bool isLast = index + 1 == count;
        const auto* state = monitor.state == "down" ? "down"
            : monitor.state == "degraded" && isLast ? "degraded"
                                                    : "up";
        regions.push_back({place.id, place.name ? std::optional<std::string>(place.name) : std::nullopt, state, end,
            rounded(average * place.distance, 10)});
    }
    return regions;
}

}  // namespace

MonitorMetrics metricsOf(const Monitor& monitor, std::chrono::minutes span, support::Time now)
{
    const Dice dice(monitor.id);
    const auto end = monitor.isPaused() ? monitor.updatedAt.value_or(now) : now;

    MonitorMetrics metrics;
    metrics.samples = samplesOf(monitor, dice, support::Time::duration(span) / monitor.samplesPerWindow, end);
    const Samples all(metrics.samples);
    const auto before = all.first(all.size() / 2);
    const auto after = all.last(all.size() / 2);
    metrics.averageMs = rounded(averageOf(all), 10);
    metrics.responseTimeChange = rounded(100 * (averageOf(after) / averageOf(before) - 1), 10);
    metrics.apdex = rounded(apdexOf(all), 100);
    metrics.apdexChange = rounded(apdexOf(after) - apdexOf(before), 100);
    metrics.uptimePercentage = rounded(uptimeOf(monitor, dice), 1'000);
    metrics.uptimeChange = rounded(metrics.uptimePercentage - 99.94, 1'000);
    metrics.state = monitor.state;
    metrics.updated = metrics.samples.back().time;
    metrics.regions = regionsOf(monitor, dice, metrics.averageMs, metrics.updated);
    return metrics;
}

}  // namespace larkspan::simulator
