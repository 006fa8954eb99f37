#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace larkspan::presentation {

/// The number of hours of a clock.
enum class ClockFace { twelveHours, twentyFourHours };

/// An hour from 0 to 23 as the clock shows it: "09" on a clock of twenty-four hours, "9" on one of twelve, where 0 is
/// "12".
std::string hourText(int hour, ClockFace face);
std::string minuteText(int minute);

/// The patterns of an hour and of a minute for a field that is typed digit by digit; on either clock the hours of the
/// whole day are accepted.
inline constexpr const char* hourPattern = "[01]?[0-9]|2[0-3]";
inline constexpr const char* minutePattern = "[0-5]?[0-9]";

/// The typed hour; empty if it is not valid. The half of the day is that of `before` unless the number determines it.
std::optional<int> typedHour(std::string_view digits, int before, ClockFace face);
std::optional<int> typedMinute(std::string_view digits);

/// Whether no digit can follow, so that the focus may move to the next field.
bool isWholeHour(std::string_view digits);
bool isWholeMinute(std::string_view digits);

}  // namespace larkspan::presentation
