#include "workspace/TasksOfScreens.h"

#include "components/ComponentDetailView.h"
#include "components/ComponentRow.h"
#include "components/StatusPageComponentsView.h"
#include "incidents/CreateIncidentView.h"
#include "incidents/IncidentDetailView.h"
#include "incidents/IncidentRow.h"
#include "incidents/StatusPageIncidentsView.h"
#include "maintenances/CreateMaintenanceView.h"
#include "maintenances/MaintenanceDetailView.h"
#include "maintenances/MaintenanceRow.h"
#include "maintenances/StatusPageMaintenancesView.h"
#include "monitors/MonitorDetailView.h"
#include "monitors/MonitorRow.h"
#include "monitors/MonitorRowView.h"
#include "monitors/StatusPageMonitorsView.h"
#include "workspace/SettingsView.h"
#include "workspace/StatusPageRow.h"

namespace larkspan::workspace {

namespace {

template <typename Screen>
Started started(Program& program, const std::shared_ptr<Screen>& screen, std::function<void()> leave, int& looks)
{
    return {.screen = screen, .leave = std::move(leave), .look = std::make_unique<Look>(program.main, screen, looks)};
}

/// Does `leave` if `behind` still exists.
template <typename Behind>
std::function<void()> leaving(
    const std::shared_ptr<Behind>& behind, std::type_identity_t<void (*)(Behind& behind)> leave)
{
    return [weak = std::weak_ptr(behind), leave] {
        if (const auto alive = weak.lock()) leave(*alive);
    };
}

void toTheOverview(StatusPageDetailView& page)
{
    page.select(Tab::overview);
}

template <Tab tab>
Started listAppears(Program& program, int& looks)
{
    const auto page = program.page();
    page->select(tab);
    const auto leave = leaving(page, toTheOverview);
    if constexpr (tab == Tab::incidents) return started(program, page->incidents(), leave, looks);
    if constexpr (tab == Tab::monitors) return started(program, page->monitors(), leave, looks);
    if constexpr (tab == Tab::components) return started(program, page->components(), leave, looks);
    if constexpr (tab == Tab::maintenances) return started(program, page->maintenances(), leave, looks);
}

Started openedIncident(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::incidents)->incidents();
    list->openIncident("7");
    return started(program, list->detail(), leaving(list, [](auto& shown) { shown.closeIncident(); }), looks);
}

template <incidents::IncidentDetailView::DetailAction action>
Started incidentAction(Program& program, int& looks)
{
    auto opened = openedIncident(program, looks);
    for (const auto* const path : {"incidents/7/acknowledge", "incidents/7/escalate"}) program.order(path, "{}");
    if constexpr (action == incidents::IncidentDetailView::DetailAction::resolve
        || action == incidents::IncidentDetailView::DetailAction::delete_)
        program.order("v1/incidents/7", Program::incidentRecord);
    program.page()->incidents()->detail()->performAction(action);
    return opened;
}

Started incidentUpdate(Program& program, int& looks)
{
    auto opened = openedIncident(program, looks);
    program.order("v1/incidents/7", Program::incidentRecord);
    auto& detail = *program.page()->incidents()->detail();
    detail.beginEditing();
    detail.editMessage = "We look into it.";
    detail.saveUpdate();
    return opened;
}

Started incidentFormAppears(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::incidents)->incidents();
    program.order("components?status_page_id=p", Components::componentsBody);
    list->openCreateIncident();
    return started(program, list->form(), leaving(list, [](auto& shown) { shown.showCreateIncident.close(); }), looks);
}

Started maintenanceFormAppears(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::maintenances)->maintenances();
    program.order("components?status_page_id=p", Components::componentsBody);
    list->openCreateMaintenance();
    return started(program, list->form(), leaving(list, [](auto& shown) { shown.showCreateSheet.close(); }), looks);
}

/// While its monitors are being fetched, the form of an incident is not complete.
template <typename Form>
void fill(Program& program, Form& form)
{
    program.run();
    form.title = "Mail";
    form.selection->chooseGroup("back");
    form.selection->chooseComponent("api");
    program.run();
}

Started incidentCreated(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::incidents)->incidents();
    list->openCreateIncident();
    fill(program, *list->form());
    auto opened
        = started(program, list->form(), leaving(list, [](auto& shown) { shown.showCreateIncident.close(); }), looks);
    program.order("v1/incidents", Program::incidentRecord);
    list->form()->save();
    return opened;
}

Started maintenanceCreated(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::maintenances)->maintenances();
    list->openCreateMaintenance();
    fill(program, *list->form());
    auto opened
        = started(program, list->form(), leaving(list, [](auto& shown) { shown.showCreateSheet.close(); }), looks);
    program.order("v1/maintenances", Program::workRecord);
    list->form()->save();
    return opened;
}

template <void (*act)(maintenances::MaintenanceDetailView& detail)>
Started maintenanceAction(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::maintenances)->maintenances();
    list->openMaintenance("7");
    auto opened = started(program, list->detail(), leaving(list, [](auto& shown) { shown.closeMaintenance(); }), looks);
    program.order("v1/maintenances/7", Program::workRecord);
    act(*list->detail());
    return opened;
}

using Work = maintenances::MaintenanceDetailView;

void startWork(Work& detail)
{
    detail.startMaintenance();
}

void completeWork(Work& detail)
{
    detail.completeMaintenance();
}

void deleteWork(Work& detail)
{
    detail.deleteRecord();
}

void saveEdits(Work& detail)
{
    detail.beginEditing();
    detail.editedTitle = "Upgrade of all";
    detail.saveEdits();
}

template <monitors::MonitorAction action>
Started monitorRow(Program& program, int& looks)
{
    const auto page = program.loaded(Tab::monitors);
    for (const auto* const path : {"monitors/1/run", "monitors/1/pause"}) program.order(path, "{}");
    const bool checks = action == monitors::MonitorAction::checkNow;
    page->monitors()->press("1", checks ? monitors::checkNowButton : monitors::pauseResumeButton);
    return started(program, page->monitors(), leaving(page, toTheOverview), looks);
}

Started metricsOpened(Program& program, int& looks)
{
    const auto page = program.loaded(Tab::monitors);
    program.order("monitors/metrics?ids=1&range=24h", R"({"metrics": {"1": {"latency": [1, 2, 3]}}})");
    page->monitors()->toggleMetrics("1");
    const auto& row = page->monitors()->rowViews().at("1");
    return started(program, row, leaving(page, toTheOverview), looks);
}

template <monitors::MonitorAction action>
Started openedMonitor(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::monitors)->monitors();
    list->openMonitor("1");
    auto opened = started(program, list->detail(), leaving(list, [](auto& shown) { shown.closeMonitor(); }), looks);
    for (const auto* const path : {"monitors/1/run", "monitors/1/pause"}) program.order(path, "{}");
    list->detail()->perform(action);
    return opened;
}

Started componentAppears(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::components)->components();
    program.order("component-groups?status_page_id=p", Components::groupsBody);
    list->openComponent("api");
    return started(program, list->detail(), leaving(list, [](auto& shown) { shown.closeComponent(); }), looks);
}

template <void (*act)(components::ComponentDetailView& detail)>
Started componentAction(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::components)->components();
    list->openComponent("api");
    program.run();
    auto opened = started(program, list->detail(), leaving(list, [](auto& shown) { shown.closeComponent(); }), looks);
    program.order("components/api", Program::componentRecord);
    act(*list->detail());
    return opened;
}

using Part = components::ComponentDetailView;

void deletePart(Part& detail)
{
    detail.deleteRecord();
}

void saveChanges(Part& detail)
{
    detail.beginEditing();
    detail.editedName = "The API";
    detail.saveChanges();
}

Started dashboardRefreshes(Program& program, int& looks)
{
    program.order("v1/status-pages", R"([{"id": "p", "name": "p"}])");
    program.dashboard->refresh();
    return started(program, program.dashboard, [&program] { program.dashboard.reset(); }, looks);
}

Started overviewRefreshes(Program& program, int& looks)
{
    program.page();
    program.order("v1/status-pages", R"([{"id": "p", "name": "p"}])");
    program.page()->refresh();
    return started(
        program, program.dashboard->openedPage.screen(), [&program] { program.dashboard->closePage(); }, looks);
}

Started openedSettings(Program& program, int& looks)
{
    program.dashboard->openSettings();
    return started(program, program.dashboard->settings(), [&program] { program.dashboard->closeSettings(); }, looks);
}

Started keySaved(Program& program, int& looks)
{
    program.credentials.items.clear();
    auto opened = openedSettings(program, looks);
    program.run();
    program.order("v1/status-pages", "[]");
    program.dashboard->settings()->edit("another-key");
    program.dashboard->settings()->saveAndVerify();
    return opened;
}

Started keyDeleted(Program& program, int& looks)
{
    auto opened = openedSettings(program, looks);
    program.run();
    program.dashboard->settings()->deleteKey();
    return opened;
}

using IncidentAction = incidents::IncidentDetailView::DetailAction;
using monitors::MonitorAction;

constexpr TaskOfAScreen tasks[] = {
    {"TheDashboardRefreshes", false, &dashboardRefreshes},
    {"TheSettingsLookForTheKey", false, &openedSettings},
    {"TheSettingsSaveAKey", false, &keySaved},
    {"TheSettingsDeleteTheKey", false, &keyDeleted},
    {"APageRefreshes", false, &overviewRefreshes},
    {"IncidentsAppear", true, &listAppears<Tab::incidents>},
    {"AnIncidentIsAcknowledged", true, &incidentAction<IncidentAction::acknowledge>},
    {"AnIncidentIsResolved", true, &incidentAction<IncidentAction::resolve>},
    {"AnIncidentIsEscalated", true, &incidentAction<IncidentAction::escalate>},
    {"AnIncidentIsDeleted", true, &incidentAction<IncidentAction::delete_>},
    {"AnIncidentIsUpdated", true, &incidentUpdate},
    {"TheFormOfAnIncidentAppears", true, &incidentFormAppears},
    {"AnIncidentIsCreated", true, &incidentCreated},
    {"MaintenancesAppear", true, &listAppears<Tab::maintenances>},
    {"AMaintenanceIsStarted", true, &maintenanceAction<&startWork>},
    {"AMaintenanceIsCompleted", true, &maintenanceAction<&completeWork>},
    {"AMaintenanceIsEdited", true, &maintenanceAction<&saveEdits>},
    {"AMaintenanceIsDeleted", true, &maintenanceAction<&deleteWork>},
    {"TheFormOfAMaintenanceAppears", true, &maintenanceFormAppears},
    {"AMaintenanceIsCreated", true, &maintenanceCreated},
    {"MonitorsAppear", true, &listAppears<Tab::monitors>},
    {"AMonitorIsPausedInItsRow", true, &monitorRow<MonitorAction::pauseResume>},
    {"AMonitorIsCheckedInItsRow", true, &monitorRow<MonitorAction::checkNow>},
    {"TheMetricsOfAMonitorAreOpened", true, &metricsOpened},
    {"AnOpenedMonitorIsPaused", true, &openedMonitor<MonitorAction::pauseResume>},
    {"AnOpenedMonitorIsChecked", true, &openedMonitor<MonitorAction::checkNow>},
    {"ComponentsAppear", true, &listAppears<Tab::components>},
    {"AComponentAppears", true, &componentAppears},
    {"AComponentIsEdited", true, &componentAction<&saveChanges>},
    {"AComponentIsDeleted", true, &componentAction<&deletePart>},
};

}  // namespace

std::span<const TaskOfAScreen> tasksOfScreens()
{
    return tasks;
}

}  // namespace larkspan::workspace
