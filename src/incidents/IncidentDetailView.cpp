#include "incidents/IncidentDetailView.h"

#include <utility>

#include "support/Trimming.h"

namespace larkspan::incidents {

using model::Incident;
using model::IncidentStatus;
using presentation::ActionButton;
using presentation::Command;
using support::Task;

namespace {

bool isOver(const Incident& incident)
{
    return incident.status == IncidentStatus::resolved || incident.status == IncidentStatus::completed;
}

}  // namespace

IncidentDetailView::IncidentDetailView(Ports ports, Incident shown, Owner owner)
    : incident(*this, std::move(shown))
    , action(std::make_shared<presentation::RunningAction>(ports.main))
    , message(std::make_shared<MessageView>(ports.links))
    , ports_(ports)
    , owner_(std::move(owner))
{
}

support::Subscriptions IncidentDetailView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), action->objectWillChange(observer)};
}

std::vector<Command<IncidentDetailView>> IncidentDetailView::commands() const
{
    const bool isIdle = !*action->isInProgress;
    if (*isEditing) {
        return {{{.id = "saveUpdate",
                     .label = "Save Update",
                     .symbol = "checkmark",
                     .isProminent = true,
                     .isEnabled = isSaveEnabled()},
            [](auto& view) { view.saveUpdate(); }}};
    }
    const bool canResolve = isIdle && !isOver(*incident);
    return {
        {{.id = "acknowledge",
             .label = "Acknowledge",
             .symbol = "eye",
             .isEnabled = canResolve && !incident->acknowledged},
            [](auto& view) { view.performAction(DetailAction::acknowledge); }},
        {{.id = "resolve",
             .label = "Resolve",
             .symbol = "checkmark.seal",
             .tone = presentation::Tone::green,
             .isEnabled = canResolve},
            [](auto& view) { view.performAction(DetailAction::resolve); }},
        {{.id = "escalate", .label = "Escalate", .symbol = "arrow.up.doc", .isEnabled = isIdle},
            [](auto& view) { view.performAction(DetailAction::escalate); }},
        {{.id = "addUpdate", .label = "Add Update", .symbol = "plus.bubble", .isProminent = true, .isEnabled = isIdle},
            [](auto& view) { view.addUpdate(); }},
    };
}

std::vector<ActionButton> IncidentDetailView::buttons() const
{
    return presentation::buttonsOf(commands());
}

void IncidentDetailView::press(std::string_view id)
{
    presentation::press(id, commands(), *this);
}

void IncidentDetailView::close()
{
    // Its owner may let go of it here.
    const auto self = shared_from_this();
    if (*isEditing)
        isEditing = false;
    else
        owner_.dismiss();
}

void IncidentDetailView::performAction(DetailAction wanted)
{
    const auto self = shared_from_this();
    switch (wanted) {
    case DetailAction::acknowledge: return action->run(acknowledge(self));
    case DetailAction::resolve: return action->run(resolve(self));
    case DetailAction::escalate: return action->run(escalate(self));
    case DetailAction::delete_: return action->run(remove(self));
    }
}

Task<void> IncidentDetailView::acknowledge(std::shared_ptr<IncidentDetailView> self)
{
    auto acknowledging = self->ports_.api.acknowledgeIncident(self->incident->id);
    co_await std::move(acknowledging);
    auto refetching = refetch(self);
    co_await std::move(refetching);
}

Task<void> IncidentDetailView::escalate(std::shared_ptr<IncidentDetailView> self)
{
    auto escalating = self->ports_.api.escalateIncident(self->incident->id);
    co_await std::move(escalating);
    auto refetching = refetch(self);
    co_await std::move(refetching);
}

// Acknowledging and escalating answer without the record.
Task<void> IncidentDetailView::refetch(std::shared_ptr<IncidentDetailView> self)
{
    auto fetching = self->ports_.api.fetchIncident(self->incident->id);
    const Incident fetched = co_await std::move(fetching);
    self->owner_.onUpdate(fetched);
}

Task<void> IncidentDetailView::resolve(std::shared_ptr<IncidentDetailView> self)
{
    auto resolving = self->ports_.api.resolveIncident(self->incident->id);
    const Incident resolved = co_await std::move(resolving);
    self->owner_.onUpdate(resolved);
}

Task<void> IncidentDetailView::remove(std::shared_ptr<IncidentDetailView> self)
{
    auto deleting = self->ports_.api.deleteIncident(self->incident->id);
    co_await std::move(deleting);
    self->owner_.dismiss();
}

void IncidentDetailView::addUpdate()
{
    editMessage = {};
    isEditing = true;
}

bool IncidentDetailView::isSaveEnabled() const
{
    return !*action->isInProgress && !support::trimmed(*editMessage).empty();
}

void IncidentDetailView::saveUpdate()
{
    std::string text(support::trimmed(*editMessage));
    if (text.empty()) return;
    action->run(save(shared_from_this(), std::move(text)));
}

Task<void> IncidentDetailView::save(std::shared_ptr<IncidentDetailView> self, std::string text)
{
    auto updating = self->ports_.api.updateIncident(self->incident->id, std::move(text));
    const Incident updated = co_await std::move(updating);
    self->owner_.onUpdate(updated);
    self->showDiscardConfirmation = false;
    self->isEditing = false;
}

void IncidentDetailView::confirmDelete()
{
    if (isDeleteEnabled()) showDeleteConfirmation = true;
}

void IncidentDetailView::deleteIncident()
{
    showDeleteConfirmation = false;
    performAction(DetailAction::delete_);
}

bool IncidentDetailView::hasUnsavedText() const
{
    return *isEditing && !support::trimmed(*editMessage).empty();
}

void IncidentDetailView::requestClose()
{
    if (hasUnsavedText())
        showDiscardConfirmation = true;
    else
        close();
}

void IncidentDetailView::discardChanges()
{
    showDiscardConfirmation = false;
    isEditing = false;
}

}  // namespace larkspan::incidents
