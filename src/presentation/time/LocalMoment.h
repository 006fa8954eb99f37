#pragma once

#include <chrono>

#include "platform/LocaleText.h"
#include "support/Time.h"

namespace larkspan::presentation {

using LocalTime = std::chrono::local_time<support::Time::duration>;

/// The moment at which the user's clocks show `wanted`. If clocks are put back and show it twice, the result is the
/// moment with the offset of `near`, else the earlier one. If clocks are put forward and skip it, the result is later
/// by the skipped time.
support::Time momentAt(const platform::LocaleText& locale, LocalTime wanted, support::Time near);

}  // namespace larkspan::presentation
