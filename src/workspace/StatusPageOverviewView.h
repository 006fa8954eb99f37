#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/AppStateManager.h"
#include "model/records/StatusPage.h"
#include "platform/LocaleText.h"
#include "presentation/shapes/Fact.h"
#include "presentation/shapes/Headline.h"
#include "presentation/shapes/Marker.h"
#include "support/Time.h"
#include "workspace/ActivityRow.h"

namespace larkspan::workspace {

/// A page in summary, from its record and from the account's lists. It sends no requests.
struct StatusPageOverviewView {
    presentation::Headline status{};
    /// The group "Status Page"; empty if the record has none of its values.
    std::vector<presentation::Fact> information{};
    std::vector<ActivityRow> activity{};
    /// Shown in place of the activity if there is none; otherwise empty.
    presentation::Marker quiet{};
    /// The group "About This Status Page"; empty if the page has no description.
    std::string about{};
    /// The group "Uptime"; empty if the page has no figures.
    std::vector<presentation::Fact> uptime{};
    /// The text below the figures: how many more there are; empty for none.
    std::string moreUptime{};

    static StatusPageOverviewView of(const model::StatusPage& page, const core::AppStateManager& state,
        const platform::LocaleText& locale, support::Time now);

    bool operator==(const StatusPageOverviewView&) const = default;
};

/// The name of a period of figures, such as "Last 24 Hours"; a period without one is its own name.
std::string_view periodLabel(std::string_view period);

/// The page's open incidents, acknowledged or not, in the order of the account, valid until its
/// next change.
std::vector<const model::Incident*> activeIncidents(const model::StatusPage& page, const core::AppStateManager& state);

/// The page's maintenances in progress, in the order of the account, valid until its next change.
std::vector<const model::Maintenance*> activeMaintenances(
    const model::StatusPage& page, const core::AppStateManager& state);

}  // namespace larkspan::workspace
