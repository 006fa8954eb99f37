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

/// What is an hour, or a minute of one, as a field takes it digit by digit; the hours are those of the whole day on
/// either clock.
inline constexpr const char* hourPattern = "[01]?[0-9]|2[0-3]";
inline constexpr const char* minutePattern = "[0-5]?[0-9]";

/// The hour that was typed; absent where that is none. The half of the day stays that of `before` unless the number
/// says which one it is.
std::optional<int> typedHour(std::string_view digits, int before, ClockFace face);
std::optional<int> typedMinute(std::string_view digits);

/// No digit can follow, so that the next field may have the keyboard.
bool isWholeHour(std::string_view digits);
bool isWholeMinute(std::string_view digits);

}  // namespace larkspan::presentation
