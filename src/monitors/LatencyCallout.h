#pragma once

#include <string>

#include "monitors/LatencyDataPoint.h"
#include "platform/LocaleText.h"

namespace larkspan::monitors {

/// What is told of the selected sample.
struct LatencyCallout {
    std::string value{};
    /// Empty where the sample has no time.
    std::string time{};

    static LatencyCallout of(const LatencyDataPoint& point, const platform::LocaleText& locale);

    /// Both as a screen reader says them.
    std::string words() const;

    bool operator==(const LatencyCallout&) const = default;
};

}  // namespace larkspan::monitors
