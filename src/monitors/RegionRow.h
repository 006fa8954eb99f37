#pragma once

#include <string>
#include <vector>

#include "model/records/MonitorMetricsWindow.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::monitors {

/// A monitor's state as seen from one region.
struct RegionRow {
    std::string name{};
    /// In milliseconds.
    std::string average{};
    /// The colour of the dot.
    presentation::Tone tone = presentation::Tone::gray;
    /// What the dot means, in a word.
    std::string state{};

    bool operator==(const RegionRow&) const = default;
};

/// The rows in the order of the window, as many as a panel shows.
std::vector<RegionRow> regionRows(const model::MonitorMetricsWindow& metrics);

/// The text for how many more there are; empty for none.
std::string moreRegions(const model::MonitorMetricsWindow& metrics);

}  // namespace larkspan::monitors
