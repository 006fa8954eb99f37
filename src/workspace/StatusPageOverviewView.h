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

/// A page in summary: what its record says, and what the account's lists say of it. It asks the service for nothing.
struct StatusPageOverviewView {
    presentation::Headline status{};
    /// The group "Status Page"; empty where the record has nothing of it.
    std::vector<presentation::Fact> information{};
    std::vector<ActivityRow> activity{};
    /// Stands in place of the activity where there is none; all empty else.
    presentation::Marker quiet{};
    /// The group "About This Status Page"; empty where the page has no description.
    std::string about{};
    /// The group "Uptime"; empty where the page has no figures.
    std::vector<presentation::Fact> uptime{};
    /// Below the figures: how many more there are; empty for none.
    std::string moreUptime{};

    static StatusPageOverviewView of(const model::StatusPage& page, const core::AppStateManager& state,
        const platform::LocaleText& locale, support::Time now);

    bool operator==(const StatusPageOverviewView&) const = default;
};

/// The name of a period of figures, such as "Last 24 Hours"; a period that has none is its own.
std::string_view periodLabel(std::string_view period);

/// Those of the page that run, acknowledged or not, in the order of the account.
std::vector<model::Incident> activeIncidents(const model::StatusPage& page, const core::AppStateManager& state);

/// Those of the page that are in progress, in the order of the account.
std::vector<model::Maintenance> activeMaintenances(const model::StatusPage& page, const core::AppStateManager& state);

}  // namespace larkspan::workspace
