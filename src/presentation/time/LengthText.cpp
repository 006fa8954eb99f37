#include "presentation/time/LengthText.h"

#include <cstdint>

namespace larkspan::presentation {

using namespace std::chrono_literals;
using std::chrono::days;
using std::chrono::floor;
using std::chrono::minutes;

namespace {

void append(std::string& text, std::int64_t count, const char* unit)
{
    if (count == 0) return;
    if (!text.empty()) text += ' ';
    text += std::to_string(count) + ' ' + unit + (count == 1 ? "" : "s");
}

}  // namespace

minutes lengthBetween(support::Time start, support::Time end)
{
    return floor<minutes>(end) - floor<minutes>(start);
}

std::string lengthText(minutes length)
{
    if (length < 0min) return "The end is before the start.";
    if (length == 0min) return "The end is at the start.";
    std::string text;
    append(text, length / days(1), "day");
    append(text, length % days(1) / 1h, "hour");
    append(text, length % 1h / 1min, "minute");
    return text;
}

}  // namespace larkspan::presentation
