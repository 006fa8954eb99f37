#include "maintenances/MaintenanceDetailView.h"

#include <chrono>
#include <utility>

#include "api/OrderOutcome.h"
#include "presentation/time/LengthText.h"
#include "support/Trimming.h"

namespace larkspan::maintenances {

using api::MaintenanceChanges;
using model::Maintenance;
using presentation::ActionButton;
using presentation::Command;
using presentation::DateTimePicker;
using presentation::TimelineRow;
using presentation::Tone;
using support::Task;

namespace {

constexpr presentation::Confirmation deletion{.title = "Delete Maintenance",
    .text = "Are you sure you want to delete this maintenance? This action cannot be undone.",
    .confirm = "Delete",
    .cancel = "Cancel"};

}  // namespace

MaintenanceDetailView::MaintenanceDetailView(Ports ports, Maintenance shown, Owner owner)
    : EditableDetail(
          ports.main, deletion, {.dismiss = std::move(owner.dismiss), .reloadList = std::move(owner.reloadList)})
    , currentMaintenance(*this, std::move(shown))
    , editedScheduledFor(
          std::make_shared<DateTimePicker>(DateTimePicker::Ports{ports.clock, ports.locale}, ports.clock.now()))
    , editedScheduledUntil(std::make_shared<DateTimePicker>(
          DateTimePicker::Ports{ports.clock, ports.locale}, ports.clock.now() + std::chrono::hours(1)))
    , message(std::make_shared<messages::MessageView>(ports.links))
    , ports_(ports)
    , onUpdate_(std::move(owner.onUpdate))
    , onDelete_(std::move(owner.onDelete))
{
}

std::vector<TimelineRow> MaintenanceDetailView::timeline() const
{
    return maintenanceTimeline(*currentMaintenance, ports_.locale);
}

std::vector<TimelineRow> MaintenanceDetailView::recordRows() const
{
    return recordTimeline(*currentMaintenance, ports_.locale);
}

presentation::Marker MaintenanceDetailView::editedLength() const
{
    const auto length = presentation::lengthBetween(*editedScheduledFor->moment, *editedScheduledUntil->moment);
    return {.text = presentation::lengthText(length)};
}

support::Subscriptions MaintenanceDetailView::observe(const std::function<void()>& observer)
{
    auto subscriptions = EditableDetail::observe(observer);
    subscriptions.push_back(editedScheduledFor->objectWillChange(observer));
    subscriptions.push_back(editedScheduledUntil->objectWillChange(observer));
    return subscriptions;
}

std::vector<Command<MaintenanceDetailView>> MaintenanceDetailView::commands() const
{
    if (*isEditing) return {};
    const auto& status = currentMaintenance->status;
    std::vector<Command<MaintenanceDetailView>> shown;
    if (status == scheduled) {
        shown.push_back({{.id = "start",
                             .label = "Start Maintenance",
                             .symbol = "play.fill",
                             .tone = Tone::yellow,
                             .isProminent = true,
                             .isEnabled = isIdle()},
            [](auto& view) { view.startMaintenance(); }});
    }
    if (status == inProgress) {
        shown.push_back({{.id = "complete",
                             .label = "Complete Maintenance",
                             .symbol = "checkmark.seal.fill",
                             .tone = Tone::green,
                             .isProminent = true,
                             .isEnabled = isIdle()},
            [](auto& view) { view.completeMaintenance(); }});
    }
    shown.push_back({{.id = "delete",
                         .label = "Delete Maintenance",
                         .symbol = "trash",
                         .tone = Tone::red,
                         .isApart = true,
                         .isEnabled = isIdle()},
        [](auto& view) { view.confirmDelete(); }});
    return shown;
}

std::vector<ActionButton> MaintenanceDetailView::buttons() const
{
    return presentation::buttonsOf(commands());
}

void MaintenanceDetailView::press(std::string_view id)
{
    presentation::press(id, commands(), *this);
}

// The dates alone start and complete a maintenance; its status follows from them.
void MaintenanceDetailView::startMaintenance()
{
    action->run(update(held(this), {.startAt = ports_.clock.now()}));
}

void MaintenanceDetailView::completeMaintenance()
{
    action->run(update(held(this), {.endAt = ports_.clock.now()}));
}

Task<void> MaintenanceDetailView::update(std::shared_ptr<MaintenanceDetailView> self, MaintenanceChanges changes)
{
    auto updating = self->ports_.api.updateMaintenance(self->currentMaintenance->id, std::move(changes));
    const Maintenance answer = co_await std::move(updating);
    const Maintenance updated = api::answerAbout(self->currentMaintenance->id, answer);
    self->currentMaintenance = updated;
    self->onUpdate_(updated);
}

void MaintenanceDetailView::fillEditor()
{
    const auto now = ports_.clock.now();
    editedTitle = currentMaintenance->title;
    editedMessage = description();
    editedScheduledFor->show(currentMaintenance->scheduledFor.value_or(now));
    editedScheduledUntil->show(currentMaintenance->completedAt.value_or(now + std::chrono::hours(1)));
}

bool MaintenanceDetailView::isEdited() const
{
    return *editedTitle != currentMaintenance->title || *editedMessage != description()
        || editedScheduledFor->isChanged() || editedScheduledUntil->isChanged();
}

bool MaintenanceDetailView::hasEditedTitle() const
{
    return !support::withoutBlanksAround(*editedTitle).empty();
}

bool MaintenanceDetailView::isSaveEnabled() const
{
    return isIdle() && hasEditedTitle();
}

void MaintenanceDetailView::saveEdits()
{
    if (hasEditedTitle()) action->run(save(held(this), edits()));
}

// The service decides which end is allowed for a start; an empty message leaves the service's one unchanged.
MaintenanceChanges MaintenanceDetailView::edits() const
{
    return {.title = *editedTitle,
        .message = editedMessage->empty() ? std::nullopt : std::optional(*editedMessage),
        .startAt = *editedScheduledFor->moment,
        .endAt = *editedScheduledUntil->moment};
}

Task<void> MaintenanceDetailView::save(std::shared_ptr<MaintenanceDetailView> self, MaintenanceChanges changes)
{
    auto updating = update(self, std::move(changes));
    co_await std::move(updating);
    self->closeEditor();
}

Task<void> MaintenanceDetailView::remove()
{
    return removeMaintenance(held(this));
}

Task<void> MaintenanceDetailView::removeMaintenance(std::shared_ptr<MaintenanceDetailView> self)
{
    auto deleting = self->ports_.api.deleteMaintenance(self->currentMaintenance->id);
    co_await std::move(deleting);
    self->onDelete_(*self->currentMaintenance);
    self->dismiss();
}

}  // namespace larkspan::maintenances
