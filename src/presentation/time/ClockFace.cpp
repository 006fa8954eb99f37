#include "presentation/time/ClockFace.h"

#include <charconv>

namespace larkspan::presentation {

namespace {

std::string twoDigits(int number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::optional<int> numberOf(std::string_view digits, int largest)
{
    int number = 0;
    const auto* const end = digits.data() + digits.size();
    const auto [at, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || at != end || number < 0 || number > largest) return std::nullopt;
    return number;
}

}  // namespace

std::string hourText(int hour, ClockFace face)
{
    return face == ClockFace::twentyFourHours ? twoDigits(hour) : std::to_string((hour + 11) % 12 + 1);
}

std::string minuteText(int minute)
{
    return twoDigits(minute);
}

std::optional<int> typedHour(std::string_view digits, int before, ClockFace face)
{
    const auto number = numberOf(digits, 23);
    if (!number) return std::nullopt;
    const bool leavesHalfOpen = face == ClockFace::twelveHours && *number >= 1 && *number <= 12;
    if (leavesHalfOpen) return *number % 12 + before / 12 * 12;
    return number;
}

std::optional<int> typedMinute(std::string_view digits)
{
    return numberOf(digits, 59);
}

bool isWholeHour(std::string_view digits)
{
    return digits.size() >= 2 || (!digits.empty() && digits.front() > '2');
}

bool isWholeMinute(std::string_view digits)
{
    return digits.size() >= 2 || (!digits.empty() && digits.front() > '5');
}

}  // namespace larkspan::presentation
