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

/// Does `act` with the screen if it still exists.
template <typename Screen>
std::function<void()> doing(
    const std::shared_ptr<Screen>& screen, std::type_identity_t<std::function<void(Screen& screen)>> act)
{
    return [weak = std::weak_ptr(screen), act = std::move(act)] {
        if (const auto alive = weak.lock()) act(*alive);
    };
}

/// Gives the order for the first time.
template <typename Screen>
Started ordered(Started opened, const std::shared_ptr<Screen>& screen,
    std::type_identity_t<std::function<void(Screen& screen)>> give)
{
    opened.again = doing(screen, std::move(give));
    if constexpr (requires { screen->action; }) {
        opened.words = [weak = std::weak_ptr(screen->action)] {
            const auto action = weak.lock();
            return action ? action->alert.words() : "";
        };
        opened.isBusy = [weak = std::weak_ptr(screen->action)] {
            const auto action = weak.lock();
            return action && *action->isInProgress;
        };
    }
    opened.again();
    return opened;
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
    const auto leave = doing(page, toTheOverview);
    if constexpr (tab == Tab::incidents) return started(program, page->incidents(), leave, looks);
    if constexpr (tab == Tab::monitors) return started(program, page->monitors(), leave, looks);
    if constexpr (tab == Tab::components) return started(program, page->components(), leave, looks);
    if constexpr (tab == Tab::maintenances) return started(program, page->maintenances(), leave, looks);
}

Started openedIncident(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::incidents)->incidents();
    list->openIncident("7");
    return started(program, list->detail(), doing(list, [](auto& shown) { shown.closeIncident(); }), looks);
}

template <incidents::IncidentDetailView::DetailAction action>
Started incidentAction(Program& program, int& looks)
{
    auto opened = openedIncident(program, looks);
    for (const auto* const path : {"incidents/7/acknowledge", "incidents/7/escalate"}) program.order(path, "{}");
    if constexpr (action == incidents::IncidentDetailView::DetailAction::resolve
        || action == incidents::IncidentDetailView::DetailAction::delete_)
        program.order("v1/incidents/7", Program::incidentRecord);
    return ordered(
        std::move(opened), program.page()->incidents()->detail(), [](auto& detail) { detail.performAction(action); });
}

Started incidentUpdate(Program& program, int& looks)
{
    auto opened = openedIncident(program, looks);
    program.order("v1/incidents/7", Program::incidentRecord);
    const auto detail = program.page()->incidents()->detail();
    detail->beginEditing();
    detail->editMessage = "We look into it.";
    return ordered(std::move(opened), detail, [](auto& shown) { shown.saveUpdate(); });
}

Started incidentFormAppears(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::incidents)->incidents();
    program.order("components?status_page_id=p", Components::componentsBody);
    list->openCreateIncident();
    return started(program, list->form(), doing(list, [](auto& shown) { shown.showCreateIncident.close(); }), looks);
}

Started maintenanceFormAppears(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::maintenances)->maintenances();
    program.order("components?status_page_id=p", Components::componentsBody);
    list->openCreateMaintenance();
    return started(program, list->form(), doing(list, [](auto& shown) { shown.showCreateSheet.close(); }), looks);
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
        = started(program, list->form(), doing(list, [](auto& shown) { shown.showCreateIncident.close(); }), looks);
    program.order("v1/incidents", Program::incidentRecord);
    return ordered(std::move(opened), list->form(), [](auto& form) { form.save(); });
}

Started maintenanceCreated(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::maintenances)->maintenances();
    list->openCreateMaintenance();
    fill(program, *list->form());
    auto opened
        = started(program, list->form(), doing(list, [](auto& shown) { shown.showCreateSheet.close(); }), looks);
    program.order("v1/maintenances", Program::workRecord);
    return ordered(std::move(opened), list->form(), [](auto& form) { form.save(); });
}

/// Gives the order `act` after `prepare`.
template <auto act, auto prepare = nullptr, typename Detail>
Started detailAction(Started opened, const std::shared_ptr<Detail>& detail)
{
    if constexpr (prepare != nullptr) prepare(*detail);
    return ordered(std::move(opened), detail, [](auto& shown) { std::invoke(act, shown); });
}

using Work = maintenances::MaintenanceDetailView;

void editWork(Work& detail)
{
    detail.beginEditing();
    detail.editedTitle = "Upgrade of all";
}

template <auto... actions>
Started maintenanceAction(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::maintenances)->maintenances();
    list->openMaintenance("7");
    auto opened = started(program, list->detail(), doing(list, [](auto& shown) { shown.closeMaintenance(); }), looks);
    program.order("v1/maintenances/7", Program::workRecord);
    return detailAction<actions...>(std::move(opened), list->detail());
}

template <monitors::MonitorAction action>
Started monitorRow(Program& program, int& looks)
{
    const auto page = program.loaded(Tab::monitors);
    for (const auto* const path : {"monitors/1/run", "monitors/1/pause"}) program.order(path, "{}");
    const auto list = page->monitors();
    auto opened = started(program, list, doing(page, toTheOverview), looks);
    opened.words = [weak = std::weak_ptr(list)] { return weak.expired() ? "" : weak.lock()->alert()->words(); };
    opened.isBusy = [weak = std::weak_ptr(list)] { return !weak.expired() && weak.lock()->rows()[0].isBusy; };
    return ordered(std::move(opened), list, [](auto& shown) {
        const bool checks = action == monitors::MonitorAction::checkNow;
        // An alert stands in front of the rows.
        shown.alert()->dismiss();
        shown.press("1", checks ? monitors::checkNowButton : monitors::pauseResumeButton);
    });
}

Started metricsOpened(Program& program, int& looks)
{
    const auto page = program.loaded(Tab::monitors);
    program.order("monitors/metrics?ids=1&range=24h", R"({"metrics": {"1": {"latency": [1, 2, 3]}}})");
    page->monitors()->toggleMetrics("1");
    const auto& row = page->monitors()->rowViews().at("1");
    return started(program, row, doing(page, toTheOverview), looks);
}

template <monitors::MonitorAction action>
Started openedMonitor(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::monitors)->monitors();
    list->openMonitor("1");
    auto opened = started(program, list->detail(), doing(list, [](auto& shown) { shown.closeMonitor(); }), looks);
    for (const auto* const path : {"monitors/1/run", "monitors/1/pause"}) program.order(path, "{}");
    return ordered(std::move(opened), list->detail(), [](auto& detail) { detail.perform(action); });
}

Started componentAppears(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::components)->components();
    program.order("component-groups?status_page_id=p", Components::groupsBody);
    list->openComponent("api");
    return started(program, list->detail(), doing(list, [](auto& shown) { shown.closeComponent(); }), looks);
}

using Part = components::ComponentDetailView;

void editPart(Part& detail)
{
    detail.beginEditing();
    detail.editedName = "The API";
}

template <auto... actions>
Started componentAction(Program& program, int& looks)
{
    const auto list = program.loaded(Tab::components)->components();
    list->openComponent("api");
    program.run();
    auto opened = started(program, list->detail(), doing(list, [](auto& shown) { shown.closeComponent(); }), looks);
    program.order("components/api", Program::componentRecord);
    return detailAction<actions...>(std::move(opened), list->detail());
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
using Kind = TaskOfAScreen::Kind;
using monitors::MonitorAction;

constexpr TaskOfAScreen tasks[] = {
    {"TheDashboardRefreshes", Kind::look, false, &dashboardRefreshes},
    {"TheSettingsLookForTheKey", Kind::look, false, &openedSettings},
    {"TheSettingsSaveAKey", Kind::look, false, &keySaved},
    {"TheSettingsDeleteTheKey", Kind::look, false, &keyDeleted},
    {"APageRefreshes", Kind::look, false, &overviewRefreshes},
    {"IncidentsAppear", Kind::look, true, &listAppears<Tab::incidents>},
    {"AnIncidentIsAcknowledged", Kind::orderAndLook, true, &incidentAction<IncidentAction::acknowledge>},
    {"AnIncidentIsResolved", Kind::order, true, &incidentAction<IncidentAction::resolve>},
    {"AnIncidentIsEscalated", Kind::orderAndLook, true, &incidentAction<IncidentAction::escalate>},
    {"AnIncidentIsDeleted", Kind::order, true, &incidentAction<IncidentAction::delete_>},
    {"AnIncidentIsUpdated", Kind::order, true, &incidentUpdate},
    {"TheFormOfAnIncidentAppears", Kind::look, true, &incidentFormAppears},
    {"AnIncidentIsCreated", Kind::order, true, &incidentCreated},
    {"MaintenancesAppear", Kind::look, true, &listAppears<Tab::maintenances>},
    {"AMaintenanceIsStarted", Kind::order, true, &maintenanceAction<&Work::startMaintenance>},
    {"AMaintenanceIsCompleted", Kind::order, true, &maintenanceAction<&Work::completeMaintenance>},
    {"AMaintenanceIsEdited", Kind::order, true, &maintenanceAction<&Work::saveEdits, &editWork>},
    {"AMaintenanceIsDeleted", Kind::order, true, &maintenanceAction<&Work::deleteRecord>},
    {"TheFormOfAMaintenanceAppears", Kind::look, true, &maintenanceFormAppears},
    {"AMaintenanceIsCreated", Kind::order, true, &maintenanceCreated},
    {"MonitorsAppear", Kind::look, true, &listAppears<Tab::monitors>},
    {"AMonitorIsPausedInItsRow", Kind::order, true, &monitorRow<MonitorAction::pauseResume>},
    {"AMonitorIsCheckedInItsRow", Kind::order, true, &monitorRow<MonitorAction::checkNow>},
    {"TheMetricsOfAMonitorAreOpened", Kind::look, true, &metricsOpened},
    {"AnOpenedMonitorIsPaused", Kind::orderAndLook, true, &openedMonitor<MonitorAction::pauseResume>},
    {"AnOpenedMonitorIsChecked", Kind::orderAndLook, true, &openedMonitor<MonitorAction::checkNow>},
    {"ComponentsAppear", Kind::look, true, &listAppears<Tab::components>},
    {"AComponentAppears", Kind::look, true, &componentAppears},
    {"AComponentIsEdited", Kind::order, true, &componentAction<&Part::saveChanges, &editPart>},
    {"AComponentIsDeleted", Kind::order, true, &componentAction<&Part::deleteRecord>},
};

}  // namespace

std::span<const TaskOfAScreen> tasksOfScreens()
{
    return tasks;
}

}  // namespace larkspan::workspace
