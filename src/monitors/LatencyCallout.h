#pragma once

#include <string>

#include "monitors/LatencyDataPoint.h"
#include "platform/LocaleText.h"

namespace larkspan::monitors {

/// The text about the selected sample.
struct LatencyCallout {
    std::string value{};
    /// Empty if the sample has no time.
    std::string time{};

    static LatencyCallout of(const LatencyDataPoint& point, const platform::LocaleText& locale);

    /// Both texts for a screen reader.
    std::string words() const;

    bool operator==(const LatencyCallout&) const = default;
};

}  // namespace larkspan::monitors
