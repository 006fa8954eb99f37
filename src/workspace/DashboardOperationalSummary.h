#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/AccountFetch.h"
#include "core/AppStateManager.h"
#include "core/OverallStatus.h"
#include "presentation/shapes/Headline.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::workspace {

/// The account in one headline.
struct DashboardOperationalSummary {
    core::OverallStatus overallStatus = core::OverallStatus::unknown;
    int statusPageCount = 0;
    /// The number of pages that are not operational.
    int affectedPageCount = 0;
    int activeIncidentCount = 0;
    int activeMaintenanceCount = 0;
    int scheduledMaintenanceCount = 0;
    /// Whether the latest cycle failed or there is no network. Wider than `OverallStatus::stale`.
    bool isStale = false;

    static DashboardOperationalSummary of(const core::AppStateManager& state);
    /// Of lists that have just been fetched.
    static DashboardOperationalSummary of(const core::AccountLists& lists);

    std::string operationalTitle() const;
    std::vector<std::string> operationalDetails() const;
    std::string_view symbolName() const;
    presentation::Tone tone() const;
    /// All of this as the dashboard shows it, with the details in one line.
    presentation::Headline headline() const;

    bool operator==(const DashboardOperationalSummary&) const = default;
};

}  // namespace larkspan::workspace
