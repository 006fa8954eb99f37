#include "presentation/time/LocalMoment.h"

namespace larkspan::presentation {

using support::Time;

Time momentAt(const platform::LocaleText& locale, LocalTime wanted, Time near)
{
    using namespace std::chrono_literals;
    // Zones differ by less than a day from UTC, and change their clocks at most once in two days.
    const Time asUTC(wanted.time_since_epoch());
    const Time before = asUTC - locale.utcOffset(asUTC - 24h);
    const Time after = asUTC - locale.utcOffset(asUTC + 24h);

    const bool isBefore = locale.localTime(before) == wanted;
    const bool isAfter = locale.localTime(after) == wanted;
    if (isBefore && isAfter) {
        return locale.utcOffset(near) == locale.utcOffset(after) ? after : before;
    }
    return isAfter ? after : before;
}

}  // namespace larkspan::presentation
