#include "presentation/time/DurationText.h"

namespace larkspan::presentation {

using namespace std::chrono_literals;

std::string durationText(support::Time from, support::Time to)
{
    const auto hours = (to - from) / 1h;
    const auto minutes = (to - from) % 1h / 1min;
    if (hours == 0 && minutes == 0) return "< 1m";

    std::string text;
    if (hours >= 1) text = std::to_string(hours) + "h";
    if (hours >= 1 && minutes >= 1) text += ' ';
    if (minutes >= 1) text += std::to_string(minutes) + "m";
    return text;
}

}  // namespace larkspan::presentation
