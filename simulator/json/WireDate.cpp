#include "json/WireDate.h"

#include <array>
#include <charconv>
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

std::optional<support::Time> readWireDate(std::string_view text)
{
    constexpr std::string_view form = "0000-00-00T00:00:00Z";
    if (text.size() != form.size()) return std::nullopt;
    for (std::size_t index = 0; index < form.size(); ++index) {
        const bool isDigit = text[index] >= '0' && text[index] <= '9';
        if (form[index] == '0' ? !isDigit : text[index] != form[index]) return std::nullopt;
    }
    const auto number = [text](std::size_t from, std::size_t length) {
        int value = 0;
        std::from_chars(text.data() + from, text.data() + from + length, value);
        return value;
    };

    const auto month = static_cast<unsigned>(number(5, 2));
    const auto dayOfMonth = static_cast<unsigned>(number(8, 2));
    const auto date = std::chrono::year(number(0, 4)) / std::chrono::month(month) / std::chrono::day(dayOfMonth);
    const std::chrono::hours hours(number(11, 2));
    const std::chrono::minutes minutes(number(14, 2));
    const std::chrono::seconds seconds(number(17, 2));
    const bool isOfAClock
        = hours < std::chrono::days(1) && minutes < std::chrono::hours(1) && seconds < std::chrono::minutes(1);
    if (!date.ok() || !isOfAClock) return std::nullopt;
    return std::chrono::sys_days(date) + hours + minutes + seconds;
}

}  // namespace larkspan::simulator
