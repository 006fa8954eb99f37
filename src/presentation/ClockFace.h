#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace larkspan::presentation {

/// How many hours a clock counts before it begins again.
enum class ClockFace { twelveHours, twentyFourHours };

/// The hour, from 0 to 23, as the clock shows it: "09" of twenty-four hours, "9" of twelve, where 0 is "12".
std::string hourText(int hour, ClockFace face);
std::string minuteText(int minute);

/// The hour that was typed; absent where there is no number. The half of the day stays that of `before` unless the
/// number says which one it is. What is beyond the day is its last hour.
std::optional<int> typedHour(std::string_view digits, int before, ClockFace face);
std::optional<int> typedMinute(std::string_view digits);

/// No digit can follow, so that the next field may have the keyboard.
bool isWholeHour(std::string_view digits);
bool isWholeMinute(std::string_view digits);

}  // namespace larkspan::presentation
