#pragma once

#include <string>

#include "platform/LocaleText.h"
#include "support/Time.h"

namespace larkspan::presentation {

/// A date as it is named seen from `now`: "Today", "Yesterday", "Tomorrow", else the date. What counts is the user's
/// calendar and not the hours between.
std::string relativeDate(const platform::LocaleText& locale, support::Time date, support::Time now);

}  // namespace larkspan::presentation
