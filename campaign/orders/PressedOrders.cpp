#include "Order.h"
#include "components/ComponentDetailView.h"
#include "incidents/IncidentDetailView.h"
#include "maintenances/MaintenanceDetailView.h"
#include "monitors/MonitorDetailView.h"
#include "service/WallClock.h"

namespace larkspan::campaign {

namespace {

using IncidentAction = incidents::IncidentDetailView::DetailAction;

std::function<Order(Desk&)> onIncident(IncidentAction wanted)
{
    return [wanted](Desk& desk) -> Order {
        incidents::IncidentDetailView::Owner owner{.onUpdate = [](const model::Incident&) {}, .dismiss = [] {}};
        const auto view = std::make_shared<incidents::IncidentDetailView>(
            incidents::IncidentDetailView::Ports{
                desk.main, desk.client.api(), simulator::wallClock(), desk.locale, desk.links},
            desk.incident(), std::move(owner));
        return {.action = view->action,
            .give = [&shown = *view, wanted] { shown.performAction(wanted); },
            .close = [&shown = *view] { shown.close(); },
            .screen = view};
    };
}

std::function<Order(Desk&)> onMaintenance(
    const std::string& status, void (maintenances::MaintenanceDetailView::*wanted)())
{
    return [status, wanted](Desk& desk) -> Order {
        maintenances::MaintenanceDetailView::Owner owner{.onUpdate = [](const model::Maintenance&) {},
            .onDelete = [](const model::Maintenance&) {},
            .dismiss = [] {}};
        const auto view = std::make_shared<maintenances::MaintenanceDetailView>(
            maintenances::MaintenanceDetailView::Ports{
                desk.main, desk.client.api(), simulator::wallClock(), desk.locale, desk.links},
            desk.maintenance(status), std::move(owner));
        return {.action = view->action,
            .give = [&shown = *view, wanted] { (shown.*wanted)(); },
            .close = [&shown = *view] { shown.close(); },
            .screen = view};
    };
}

Order componentDeletion(Desk& desk)
{
    components::ComponentDetailView::Owner owner{
        .onUpdate = [](const model::Component&) {}, .onDelete = [](const model::Component&) {}, .dismiss = [] {}};
    const auto view = std::make_shared<components::ComponentDetailView>(
        components::ComponentDetailView::Ports{desk.main, desk.client.api(), desk.links}, desk.subjects().page,
        desk.component(), std::move(owner));
    return {.action = view->action,
        .give = [&shown = *view] { shown.deleteRecord(); },
        .close = [&shown = *view] { shown.close(); },
        .screen = view};
}

std::function<Order(Desk&)> onMonitor(std::string Subjects::* monitor, monitors::MonitorAction wanted)
{
    return [monitor, wanted](Desk& desk) -> Order {
        const auto actions = std::make_shared<monitors::MonitorActions>(desk.client.api());
        const auto view = std::make_shared<monitors::MonitorDetailView>(
            monitors::MonitorDetailView::Ports{desk.main, actions, desk.locale, desk.links},
            desk.monitor(desk.subjects().*monitor),
            monitors::MonitorDetailView::Owner{.onUpdate = [](const model::Monitor&) {}});
        return {.action = view->action, .give = [&shown = *view, wanted] { shown.perform(wanted); }, .screen = view};
    };
}

}  // namespace

std::vector<OrderKind> pressedOrders()
{
    using Maintenance = maintenances::MaintenanceDetailView;
    using monitors::MonitorAction;
    return {
        {{"acknowledging", "POST", Answer::nothing}, onIncident(IncidentAction::acknowledge)},
        {{"escalating", "POST", Answer::nothing}, onIncident(IncidentAction::escalate)},
        {{"resolving", "PATCH", Answer::record}, onIncident(IncidentAction::resolve)},
        {{"deleting an incident", "DELETE", Answer::nothing}, onIncident(IncidentAction::delete_)},
        {{"starting a maintenance", "PATCH", Answer::record},
            onMaintenance("scheduled", &Maintenance::startMaintenance)},
        {{"completing a maintenance", "PATCH", Answer::record},
            onMaintenance("in_progress", &Maintenance::completeMaintenance)},
        {{"deleting a maintenance", "DELETE", Answer::nothing}, onMaintenance("scheduled", &Maintenance::deleteRecord)},
        {{"deleting a component", "DELETE", Answer::nothing}, componentDeletion},
        {{"pausing a monitor", "POST", Answer::nothing}, onMonitor(&Subjects::monitor, MonitorAction::pauseResume)},
        {{"resuming a monitor", "POST", Answer::nothing},
            onMonitor(&Subjects::pausedMonitor, MonitorAction::pauseResume)},
        {{"checking a monitor", "POST", Answer::nothing}, onMonitor(&Subjects::monitor, MonitorAction::checkNow)},
    };
}

const std::vector<OrderKind>& orderKinds()
{
    static const auto all = [] {
        auto both = typedOrders();
        const auto more = pressedOrders();
        both.insert(both.end(), more.begin(), more.end());
        return both;
    }();
    return all;
}

}  // namespace larkspan::campaign
