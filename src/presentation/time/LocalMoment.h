#pragma once

#include <chrono>

#include "platform/LocaleText.h"
#include "support/Time.h"

namespace larkspan::presentation {

using LocalTime = std::chrono::local_time<support::Time::duration>;

/// The moment at which the user's clocks show `wanted`. Where clocks are put back they show it twice: then it is the
/// moment with the offset of `near`, else the earlier one. Where they are put forward they skip it: then it is as much
/// later.
support::Time momentAt(const platform::LocaleText& locale, LocalTime wanted, support::Time near);

}  // namespace larkspan::presentation
