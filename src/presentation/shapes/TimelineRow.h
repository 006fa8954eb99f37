#pragma once

#include <string>

#include "platform/LocaleText.h"
#include "support/Time.h"

namespace larkspan::presentation {

/// A moment in the life of an incident or a maintenance.
struct TimelineRow {
    std::string symbol{};
    std::string label{};
    std::string date{};
    std::string time{};

    bool operator==(const TimelineRow&) const = default;
};

TimelineRow timelineRow(
    std::string symbol, std::string label, support::Time moment, const platform::LocaleText& locale);

}  // namespace larkspan::presentation
