#pragma once

#include <string>
#include <vector>

#include "model/records/Monitor.h"
#include "monitors/MetricBadge.h"
#include "presentation/shapes/ActionButton.h"
#include "presentation/shapes/Pill.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::monitors {

class MonitorRowView;

/// One monitor in the list of its page.
struct MonitorRow {
    std::string id{};
    std::string title{};
    std::string statusIcon{};
    std::string status{};
    presentation::Tone tone = presentation::Tone::gray;
    presentation::Pill type{};
    /// Whether the metrics, or a text in their place, are shown.
    bool isOpen = false;
    /// Whether the button that opens and closes them shows progress and cannot be pressed.
    bool isLoading = false;
    /// The text of that button.
    std::string disclosure{};
    /// Only while metrics are loaded and closed.
    std::vector<MetricBadge> badges{};
    std::vector<presentation::ActionButton> buttons{};
    /// Whether an action on the monitor runs, which a moving mark beside the buttons shows.
    bool isBusy = false;

    /// `view` is null for a row that was never opened.
    static MonitorRow of(const model::Monitor& monitor, const MonitorRowView* view, bool isPerformingAction);

    bool operator==(const MonitorRow&) const = default;
};

}  // namespace larkspan::monitors
