#include "Order.h"
#include "components/ComponentDetailView.h"
#include "incidents/CreateIncidentView.h"
#include "incidents/IncidentDetailView.h"
#include "maintenances/CreateMaintenanceView.h"
#include "maintenances/MaintenanceDetailView.h"
#include "model/json/ISO8601.h"
#include "service/WallClock.h"

namespace larkspan::campaign {

namespace {

using Words = std::vector<std::string>;

std::string written(const std::shared_ptr<presentation::DateTimePicker>& picker)
{
    return model::writeISO8601(*picker->moment);
}

presentation::ComponentSelection::Ports selectionPorts(Desk& desk)
{
    return {desk.main, desk.client.api(), desk.client.api(), desk.locale};
}

/// Types into the form and chooses a component with its monitor.
template <typename Form>
void fill(Desk& desk, Form& form)
{
    form.appear();
    desk.run([&form] { return !*form.selection->isLoadingComponents; });
    form.title = "Mail is down \u2014 \"all\" of it";
    form.message = "We look.\n\n- more to come\n";
    form.selection->chooseGroup(desk.subjects().group);
    form.selection->chooseComponent(desk.subjects().component);
    desk.run([&form] { return !*form.selection->isLoadingMonitors; });
    const auto& monitors = *form.selection->componentMonitors;
    if (!monitors.empty()) form.selection->chooseMonitor(monitors.front().id);
}

template <typename Form>
Words typedInto(const Form& form)
{
    const auto& selection = *form.selection;
    return {*form.title, *form.message, *selection.selectedComponentGroupID, *selection.selectedComponentID,
        *selection.selectedMonitorID};
}

Order newIncident(Desk& desk)
{
    incidents::CreateIncidentView::Owner owner{.onCreated = [](const model::Incident&) {}, .dismiss = [] {}};
    const auto form = std::make_shared<incidents::CreateIncidentView>(
        incidents::CreateIncidentView::Ports{desk.client.api(), selectionPorts(desk)}, desk.subjects().page,
        std::move(owner));
    fill(desk, *form);
    form->notifySubscribers = false;
    const auto typed = [&view = *form] {
        auto words = typedInto(view);
        words.emplace_back(*view.notifySubscribers ? "told" : "not told");
        return words;
    };
    return {form->action, [&view = *form] { view.save(); }, typed, [&view = *form] { view.close(); }, form};
}

Order newMaintenance(Desk& desk)
{
    maintenances::CreateMaintenanceView::Owner owner{.onCreated = [](const model::Maintenance&) {}, .dismiss = [] {}};
    const auto form = std::make_shared<maintenances::CreateMaintenanceView>(
        maintenances::CreateMaintenanceView::Ports{desk.client.api(), simulator::wallClock(), selectionPorts(desk)},
        desk.subjects().page, std::move(owner));
    fill(desk, *form);
    form->scheduledUntil->moveDays(2);
    const auto typed = [&view = *form] {
        auto words = typedInto(view);
        words.insert(words.end(), {written(view.scheduledFor), written(view.scheduledUntil)});
        return words;
    };
    return {form->action, [&view = *form] { view.save(); }, typed, [&view = *form] { view.close(); }, form};
}

Order incidentUpdate(Desk& desk)
{
    incidents::IncidentDetailView::Owner owner{.onUpdate = [](const model::Incident&) {}, .dismiss = [] {}};
    const auto view = std::make_shared<incidents::IncidentDetailView>(
        incidents::IncidentDetailView::Ports{
            desk.main, desk.client.api(), simulator::wallClock(), desk.locale, desk.links},
        desk.incident(), std::move(owner));
    view->beginEditing();
    view->editMessage = "Still looking.\nSoon more.";
    const auto typed
        = [&shown = *view] { return Words{*shown.editMessage, *shown.isEditing ? "in the editor" : "closed"}; };
    return {view->action, [&shown = *view] { shown.saveUpdate(); }, typed, [&shown = *view] { shown.close(); }, view};
}

Order maintenanceEdits(Desk& desk)
{
    maintenances::MaintenanceDetailView::Owner owner{
        .onUpdate = [](const model::Maintenance&) {}, .onDelete = [](const model::Maintenance&) {}, .dismiss = [] {}};
    const auto view = std::make_shared<maintenances::MaintenanceDetailView>(
        maintenances::MaintenanceDetailView::Ports{
            desk.main, desk.client.api(), simulator::wallClock(), desk.locale, desk.links},
        desk.maintenance("scheduled"), std::move(owner));
    view->beginEditing();
    view->editedTitle = "A longer upgrade";
    view->editedMessage = "With *more* to do.";
    view->editedScheduledUntil->moveDays(3);
    const auto typed = [&shown = *view] {
        return Words{*shown.editedTitle, *shown.editedMessage, written(shown.editedScheduledFor),
            written(shown.editedScheduledUntil), *shown.isEditing ? "in the editor" : "closed"};
    };
    return {view->action, [&shown = *view] { shown.saveEdits(); }, typed, [&shown = *view] { shown.close(); }, view};
}

Order componentEdits(Desk& desk)
{
    components::ComponentDetailView::Owner owner{
        .onUpdate = [](const model::Component&) {}, .onDelete = [](const model::Component&) {}, .dismiss = [] {}};
    const auto view = std::make_shared<components::ComponentDetailView>(
        components::ComponentDetailView::Ports{desk.main, desk.client.api(), desk.links}, desk.subjects().page,
        desk.component(), std::move(owner));
    view->appear();
    desk.run([&shown = *view] { return shown.showsGroupPicker(); });
    view->beginEditing();
    view->editedName = "Search, renamed";
    view->editedDescription = "What people search with.";
    view->chooseStatus(2);
    view->chooseGroup("");
    const auto typed = [&shown = *view] {
        return Words{*shown.editedName, *shown.editedDescription, *shown.editedStatus, shown.selectedGroup(),
            *shown.isEditing ? "in the editor" : "closed"};
    };
    return {view->action, [&shown = *view] { shown.saveChanges(); }, typed, [&shown = *view] { shown.close(); }, view};
}

}  // namespace

std::vector<OrderKind> typedOrders()
{
    return {
        {{"a new incident", "POST", Answer::record}, newIncident},
        {{"a new maintenance", "POST", Answer::record}, newMaintenance},
        {{"an update of an incident", "PATCH", Answer::record}, incidentUpdate},
        {{"edits of a maintenance", "PATCH", Answer::record}, maintenanceEdits},
        {{"edits of a component", "PUT", Answer::record}, componentEdits},
    };
}

}  // namespace larkspan::campaign
