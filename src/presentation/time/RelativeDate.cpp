#include "presentation/time/RelativeDate.h"

#include <array>
#include <chrono>
#include <string_view>

namespace larkspan::presentation {

namespace {

using namespace std::chrono;

struct Unit {
    seconds length;
    std::string_view name;
};

// Months and years have their mean length in the calendar.
constexpr std::array<Unit, 7> units{{{years(1), "year"}, {months(1), "month"}, {weeks(1), "week"}, {days(1), "day"},
    {hours(1), "hour"}, {minutes(1), "minute"}, {seconds(1), "second"}}};

}  // namespace

std::string relativeDate(support::Time date, support::Time now)
{
    const auto distance = abs(now - date);
    for (const auto& unit : units) {
        const auto count = distance / unit.length;
        if (count == 0) continue;
        auto text = std::to_string(count) + ' ' + std::string(unit.name) + (count == 1 ? "" : "s");
        return date < now ? text + " ago" : "in " + text;
    }
    return "now";
}

}  // namespace larkspan::presentation
