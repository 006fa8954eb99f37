#include "json/WireDate.h"

#include <array>
#include <cstdio>

namespace larkspan::simulator {

std::string wireDate(support::Time time)
{
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(time - day);
    const auto milliseconds = static_cast<int>(clock.subseconds().count());

    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()), static_cast<int>(clock.hours().count()),
        static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
    std::string whole = text.data();
    if (milliseconds != 0) {
        std::snprintf(text.data(), text.size(), ".%03d", milliseconds);
        whole += text.data();
    }
    return whole + "Z";
}

}  // namespace larkspan::simulator
