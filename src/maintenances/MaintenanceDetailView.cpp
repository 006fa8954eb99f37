#include "maintenances/MaintenanceDetailView.h"

#include <chrono>
#include <utility>

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

MaintenanceDetailView::MaintenanceDetailView(Ports ports, Maintenance shown, Owner owner)
    : currentMaintenance(*this, std::move(shown))
    , editedScheduledFor(
          std::make_shared<DateTimePicker>(DateTimePicker::Ports{ports.clock, ports.locale}, ports.clock.now()))
    , editedScheduledUntil(std::make_shared<DateTimePicker>(
          DateTimePicker::Ports{ports.clock, ports.locale}, ports.clock.now() + std::chrono::hours(1)))
    , action(std::make_shared<presentation::RunningAction>(ports.main))
    , message(std::make_shared<incidents::MessageView>(ports.links))
    , ports_(ports)
    , owner_(std::move(owner))
{
}

support::Subscriptions MaintenanceDetailView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), action->objectWillChange(observer)};
}

std::vector<TimelineRow> MaintenanceDetailView::timeline() const
{
    return maintenanceTimeline(*currentMaintenance, ports_.locale);
}

std::vector<TimelineRow> MaintenanceDetailView::recordRows() const
{
    return recordTimeline(*currentMaintenance, ports_.locale);
}

std::vector<Command<MaintenanceDetailView>> MaintenanceDetailView::commands() const
{
    if (*isEditing) return {};
    const bool isIdle = !*action->isInProgress;
    const auto& status = currentMaintenance->status;
    std::vector<Command<MaintenanceDetailView>> shown;
    if (status == scheduled) {
        shown.push_back({{.id = "start",
                             .label = "Start Maintenance",
                             .symbol = "play.fill",
                             .tone = Tone::yellow,
                             .isProminent = true,
                             .isEnabled = isIdle},
            [](auto& view) { view.startMaintenance(); }});
    }
    if (status == inProgress) {
        shown.push_back({{.id = "complete",
                             .label = "Complete Maintenance",
                             .symbol = "checkmark.seal.fill",
                             .tone = Tone::green,
                             .isProminent = true,
                             .isEnabled = isIdle},
            [](auto& view) { view.completeMaintenance(); }});
    }
    shown.push_back(
        {{.id = "delete", .label = "Delete Maintenance", .symbol = "trash", .tone = Tone::red, .isEnabled = isIdle},
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

void MaintenanceDetailView::close()
{
    // Its owner may let go of it here.
    const auto self = shared_from_this();
    if (*isEditing)
        isEditing = false;
    else
        owner_.dismiss();
}

// The dates alone start and complete a maintenance; its status follows from them.
void MaintenanceDetailView::startMaintenance()
{
    action->run(update(shared_from_this(), {.startAt = ports_.clock.now()}));
}

void MaintenanceDetailView::completeMaintenance()
{
    action->run(update(shared_from_this(), {.endAt = ports_.clock.now()}));
}

Task<void> MaintenanceDetailView::update(std::shared_ptr<MaintenanceDetailView> self, MaintenanceChanges changes)
{
    auto updating = self->ports_.api.updateMaintenance(self->currentMaintenance->id, std::move(changes));
    const Maintenance updated = co_await std::move(updating);
    self->currentMaintenance = updated;
    self->owner_.onUpdate(updated);
}

void MaintenanceDetailView::beginEditing()
{
    if (!isMenuEnabled()) return;
    const auto now = ports_.clock.now();
    editedTitle = currentMaintenance->title;
    editedMessage = description();
    editedScheduledFor->show(currentMaintenance->scheduledFor.value_or(now));
    editedScheduledUntil->show(currentMaintenance->completedAt.value_or(now + std::chrono::hours(1)));
    isEditing = true;
}

bool MaintenanceDetailView::hasEditedTitle() const
{
    return !support::withoutBlanksAround(*editedTitle).empty();
}

bool MaintenanceDetailView::isSaveEnabled() const
{
    return !*action->isInProgress && hasEditedTitle();
}

void MaintenanceDetailView::saveEdits()
{
    if (hasEditedTitle()) action->run(save(shared_from_this(), edits()));
}

// Which end may follow which start is the service's to say, and an emptied message is left as it is there.
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
    self->showDiscardConfirmation = false;
    self->isEditing = false;
}

void MaintenanceDetailView::confirmDelete()
{
    if (isMenuEnabled()) showDeleteConfirmation = true;
}

void MaintenanceDetailView::removeMaintenance()
{
    showDeleteConfirmation = false;
    action->run(remove(shared_from_this()));
}

Task<void> MaintenanceDetailView::remove(std::shared_ptr<MaintenanceDetailView> self)
{
    auto deleting = self->ports_.api.deleteMaintenance(self->currentMaintenance->id);
    co_await std::move(deleting);
    self->owner_.onDelete(*self->currentMaintenance);
    self->owner_.dismiss();
}

bool MaintenanceDetailView::hasUnsavedText() const
{
    return *isEditing
        && (*editedTitle != currentMaintenance->title || *editedMessage != description()
            || editedScheduledFor->isChanged() || editedScheduledUntil->isChanged());
}

void MaintenanceDetailView::requestClose()
{
    if (hasUnsavedText())
        showDiscardConfirmation = true;
    else
        close();
}

void MaintenanceDetailView::discardChanges()
{
    showDiscardConfirmation = false;
    isEditing = false;
}

}  // namespace larkspan::maintenances
