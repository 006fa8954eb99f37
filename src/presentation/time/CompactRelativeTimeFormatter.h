#pragma once

#include <string>

#include "support/Time.h"

namespace larkspan::presentation {

/// A past moment as a short text: "just now", "45s ago", "1m ago", "23h ago", "2d ago". Numbers are truncated, never
/// rounded. A moment in the future is "just now".
struct CompactRelativeTimeFormatter {
    static std::string relativeText(support::Time date, support::Time now);
};

}  // namespace larkspan::presentation
