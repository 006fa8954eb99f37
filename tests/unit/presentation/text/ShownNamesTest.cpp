#include <gtest/gtest.h>

#include "components/ComponentRow.h"
#include "core/StatusMenu.h"
#include "fakes/FakeLocaleText.h"
#include "incidents/IncidentRow.h"
#include "maintenances/MaintenanceRow.h"
#include "monitors/MonitorRow.h"
#include "monitors/RegionRow.h"
#include "presentation/shapes/Choice.h"
#include "workspace/ActivityRow.h"
#include "workspace/StatusPageRow.h"

namespace larkspan {

namespace {

const std::string twoLines = "Payment\nAPI";
const std::string oneLine = "Payment API";

/// The titles of everything that shows a name of the service.
std::vector<std::string> shownAs(const std::string& name)
{
    const fakes::FakeLocaleText locale;
    model::StatusPage page;
    page.name = name;
    model::Incident incident;
    incident.title = name;
    incident.status = model::IncidentStatus::active;
    model::Maintenance maintenance;
    maintenance.title = name;
    model::Monitor monitor;
    monitor.name = name;
    model::Component component;
    component.name = name;
    component.groupId = "g";
    model::ComponentGroup group;
    group.id = "g";
    group.name = name;
    model::MonitorMetricsWindow metrics;
    metrics.regionStates = {{.regionId = "eu", .regionName = name}};

    std::vector<std::string> titles{workspace::StatusPageRow::of(page).title,
        incidents::IncidentRow::of(incident, locale).title, maintenances::MaintenanceRow::of(maintenance, locale).title,
        monitors::MonitorRow::of(monitor, nullptr, false).title, workspace::ActivityRow::of(incident).title,
        workspace::ActivityRow::of(maintenance).title, monitors::regionRows(metrics).front().name,
        presentation::choicesOf("None", std::vector{group}).back().name};
    for (const auto& row : components::componentRows({component}, {group})) titles.push_back(row.title);
    const std::vector pages{page};
    const std::vector active{incident};
    for (const auto& row : core::menuRows({.statusPages = pages, .incidents = active, .lastRefresh = {}, .now = {}})) {
        if (row.title == name || row.title == oneLine || row.title == "Unnamed") titles.push_back(row.title);
    }
    return titles;
}

TEST(ShownNames, OfSeveralLinesAreOneLineInEveryListMenuAndChoice)
{
    EXPECT_EQ(shownAs(twoLines), std::vector(12, oneLine));
}

TEST(ShownNames, WithoutAVisibleCharacterAreAWordInEveryListMenuAndChoice)
{
    EXPECT_EQ(shownAs("\u200B"), std::vector<std::string>(12, "Unnamed"));
}

}  // namespace

}  // namespace larkspan
