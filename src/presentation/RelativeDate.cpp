#include "presentation/RelativeDate.h"

namespace larkspan::presentation {

std::string relativeDate(const platform::LocaleText& locale, support::Time date, support::Time now)
{
    switch ((locale.day(date) - locale.day(now)).count()) {
    case -1: return "Yesterday";
    case 0: return "Today";
    case 1: return "Tomorrow";
    default: return locale.dateOnly(date);
    }
}

}  // namespace larkspan::presentation
