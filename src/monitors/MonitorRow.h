#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/records/Monitor.h"
#include "monitors/MetricBadge.h"
#include "monitors/MonitorRowView.h"
#include "presentation/shapes/ActionButton.h"
#include "presentation/shapes/Pill.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::monitors {

/// One monitor in the list of its page.
struct MonitorRow {
    /// Of the buttons.
    static constexpr std::string_view pauseResume = "pauseResume";
    static constexpr std::string_view checkNow = "checkNow";

    std::string id{};
    std::string title{};
    std::string statusIcon{};
    std::string status{};
    presentation::Tone tone = presentation::Tone::gray;
    presentation::Pill type{};
    /// The metrics are shown, or what stands in their place.
    bool isOpen = false;
    /// The button that opens and closes them spins and cannot be pressed.
    bool isLoading = false;
    /// What that button says.
    std::string disclosure{};
    /// Only while the metrics are there and closed.
    std::vector<MetricBadge> badges{};
    std::vector<presentation::ActionButton> buttons{};

    /// `view` is null for a row that was never opened.
    static MonitorRow of(const model::Monitor& monitor, const MonitorRowView* view, bool isPerformingAction);

    bool operator==(const MonitorRow&) const = default;
};

}  // namespace larkspan::monitors
