#include "monitors/MonitorRow.h"

#include "monitors/MonitorAction.h"
#include "monitors/MonitorColors.h"
#include "monitors/MonitorPills.h"
#include "monitors/MonitorRowView.h"
#include "presentation/text/NameText.h"

namespace larkspan::monitors {

using model::Monitor;
using presentation::ActionButton;

namespace {

std::vector<ActionButton> buttonsOf(const Monitor& monitor, bool areEnabled)
{
    return {{.id = std::string(pauseResumeButton),
                .label = monitor.isPaused ? "Resume" : "Pause",
                .symbol = monitor.isPaused ? "play.fill" : "pause.fill",
                .isEnabled = areEnabled},
        {.id = std::string(checkNowButton),
            .label = "Check Now",
            .symbol = "arrow.clockwise",
            .isEnabled = areEnabled}};
}

}  // namespace

MonitorRow MonitorRow::of(const Monitor& monitor, const MonitorRowView* view, bool isPerformingAction)
{
    const bool isOpen = view && *view->showingMetrics;
    MonitorRow row{.id = monitor.id,
        .title = presentation::rowTitle(monitor.name),
        .statusIcon = std::string(monitorStatusIcon(monitor.status)),
        .status = statusWord(monitor),
        .tone = monitorStatusColor(monitor.status),
        .type = typePill(monitor),
        .isOpen = isOpen,
        .isLoading = view && *view->isLoadingMetrics,
        .disclosure = isOpen ? "Hide latency graph" : "Show latency graph",
        .buttons = buttonsOf(monitor, !isPerformingAction),
        .isBusy = isPerformingAction};
    if (view && view->panel() && !isOpen) row.badges = metricBadges(view->panel()->metrics);
    return row;
}

}  // namespace larkspan::monitors
