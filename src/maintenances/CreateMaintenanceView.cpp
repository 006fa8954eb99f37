#include "maintenances/CreateMaintenanceView.h"

#include <chrono>
#include <utility>

#include "presentation/time/LengthText.h"
#include "support/UnlessEmpty.h"

namespace larkspan::maintenances {

using api::NewMaintenance;
using presentation::ComponentSelection;
using presentation::DateTimePicker;
using presentation::lengthBetween;
using presentation::lengthText;
using presentation::Marker;
using presentation::Tone;
using support::Task;

namespace {

constexpr ComponentSelection::Words selectionWords{.noMonitor = "All monitors on this component",
    .hintForPage = "Leave this as Entire status page for page-wide maintenance.",
    .hintForComponent = "Choose the affected component and, optionally, one monitor.",
    .failure = ComponentSelection::ComponentFailure::told};

api::Ids idsOf(const std::string& id)
{
    if (id.empty()) return std::nullopt;
    return std::vector{id};
}

}  // namespace

CreateMaintenanceView::CreateMaintenanceView(Ports ports, std::string page, Owner owner)
    : EventForm(ports.selection, std::move(page), selectionWords,
          {.dismiss = std::move(owner.dismiss), .reloadList = std::move(owner.reloadList)})
    , scheduledFor(std::make_shared<DateTimePicker>(
          DateTimePicker::Ports{ports.clock, ports.selection.locale}, ports.clock.now()))
    , scheduledUntil(std::make_shared<DateTimePicker>(
          DateTimePicker::Ports{ports.clock, ports.selection.locale}, *scheduledFor->moment + std::chrono::hours(1)))
    , api_(ports.api)
    , onCreated_(std::move(owner.onCreated))
{
}

support::Subscriptions CreateMaintenanceView::observe(const std::function<void()>& observer)
{
    auto subscriptions = EventForm::observe(observer);
    subscriptions.push_back(scheduledFor->objectWillChange(observer));
    subscriptions.push_back(scheduledUntil->objectWillChange(observer));
    return subscriptions;
}

bool CreateMaintenanceView::isSelectionComplete() const
{
    return selection->selectedComponentGroupID->empty() || !selection->selectedComponentID->empty();
}

bool CreateMaintenanceView::canBeSent() const
{
    return EventForm::canBeSent() && hasLength();
}

bool CreateMaintenanceView::hasLength() const
{
    return lengthBetween(*scheduledFor->moment, *scheduledUntil->moment) > std::chrono::minutes(0);
}

Marker CreateMaintenanceView::length() const
{
    auto text = lengthText(lengthBetween(*scheduledFor->moment, *scheduledUntil->moment));
    if (hasLength()) return {.text = std::move(text)};
    return {.symbol = "exclamationmark.triangle.fill",
        .symbolTone = Tone::orange,
        .text = std::move(text),
        .tone = Tone::orange};
}

bool CreateMaintenanceView::hasUnsavedText() const
{
    return EventForm::hasUnsavedText() || scheduledFor->isChanged() || scheduledUntil->isChanged();
}

NewMaintenance CreateMaintenanceView::arguments() const
{
    return {.title = *title,
        .message = support::unlessEmpty(*message),
        .statusPageId = pageId,
        .startAt = *scheduledFor->moment,
        .endAt = *scheduledUntil->moment,
        .componentIds = idsOf(*selection->selectedComponentID),
        .monitorIds = idsOf(*selection->selectedMonitorID)};
}

Task<void> CreateMaintenanceView::create()
{
    return send(held(this), api_.createMaintenance(arguments()), onCreated_);
}

}  // namespace larkspan::maintenances
