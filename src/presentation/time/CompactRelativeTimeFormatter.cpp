#include "presentation/time/CompactRelativeTimeFormatter.h"

namespace larkspan::presentation {

using namespace std::chrono_literals;

std::string CompactRelativeTimeFormatter::relativeText(support::Time date, support::Time now)
{
    const auto elapsed = now - date;
    const auto in = [elapsed](auto unit) { return std::to_string(elapsed / unit); };

    if (elapsed < 10s) return "just now";
    if (elapsed < 1min) return in(1s) + "s ago";
    if (elapsed < 1h) return in(1min) + "m ago";
    if (elapsed < 24h) return in(1h) + "h ago";
    return in(24h) + "d ago";
}

}  // namespace larkspan::presentation
