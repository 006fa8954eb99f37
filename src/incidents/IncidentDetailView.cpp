#include "incidents/IncidentDetailView.h"

#include <utility>

#include "api/OrderOutcome.h"
#include "presentation/text/NameText.h"
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

constexpr presentation::Confirmation deletion{.title = "Delete Incident",
    .text = "Are you sure you want to delete this incident? This action cannot be undone.",
    .confirm = "Delete",
    .cancel = "Cancel"};

}  // namespace

IncidentDetailView::IncidentDetailView(Ports ports, Incident shown, Owner owner)
    : EditableDetail(
          ports.main, deletion, {.dismiss = std::move(owner.dismiss), .reloadList = std::move(owner.reloadList)})
    , incident(*this, std::move(shown))
    , message(std::make_shared<messages::MessageView>(ports.links))
    , ports_(ports)
    , onUpdate_(std::move(owner.onUpdate))
{
}

std::string IncidentDetailView::assignedTo() const
{
    const auto& person = incident->assignedTo;
    return person && !person->empty() ? presentation::nameText(*person) : "";
}

std::vector<Command<IncidentDetailView>> IncidentDetailView::commands() const
{
    if (*isEditing) return {};
    const bool canResolve = isIdle() && !isOver(*incident);
    return {
        {{.id = "acknowledge",
             .label = "Acknowledge",
             .symbol = "eye",
             .isPaired = true,
             .isEnabled = canResolve && !incident->acknowledged},
            [](auto& view) { view.performAction(DetailAction::acknowledge); }},
        {{.id = "resolve",
             .label = "Resolve",
             .symbol = "checkmark.seal",
             .tone = presentation::Tone::green,
             .isPaired = true,
             .isEnabled = canResolve},
            [](auto& view) { view.performAction(DetailAction::resolve); }},
        {{.id = "escalate", .label = "Escalate", .symbol = "arrow.up.doc", .isEnabled = isIdle()},
            [](auto& view) { view.performAction(DetailAction::escalate); }},
        {{.id = "addUpdate",
             .label = "Add Update",
             .symbol = "plus.bubble",
             .isProminent = true,
             .isApart = true,
             .isEnabled = isIdle()},
            [](auto& view) { view.beginEditing(); }},
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

void IncidentDetailView::performAction(DetailAction wanted)
{
    switch (wanted) {
    case DetailAction::acknowledge: return action->run(acknowledge(held(this)));
    case DetailAction::resolve: return action->run(resolve(held(this)));
    case DetailAction::escalate: return action->run(escalate(held(this)));
    case DetailAction::delete_: return deleteRecord();
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

// The answers to acknowledging and escalating do not contain the record.
Task<void> IncidentDetailView::refetch(std::shared_ptr<IncidentDetailView> self)
{
    auto fetching = self->ports_.api.fetchIncident(self->incident->id);
    const Incident fetched = co_await std::move(fetching);
    self->take(fetched);
}

Task<void> IncidentDetailView::resolve(std::shared_ptr<IncidentDetailView> self)
{
    auto resolving = self->ports_.api.resolveIncident(self->incident->id);
    const Incident resolved = co_await std::move(resolving);
    self->take(resolved);
}

void IncidentDetailView::take(const Incident& answer) const
{
    onUpdate_(api::answerAbout(incident->id, answer));
}

Task<void> IncidentDetailView::remove()
{
    return deleteIncident(held(this));
}

Task<void> IncidentDetailView::deleteIncident(std::shared_ptr<IncidentDetailView> self)
{
    auto deleting = self->ports_.api.deleteIncident(self->incident->id);
    co_await std::move(deleting);
    self->dismiss();
}

bool IncidentDetailView::isEdited() const
{
    return !support::trimmed(*editMessage).empty();
}

bool IncidentDetailView::isSaveEnabled() const
{
    return isIdle() && isEdited();
}

void IncidentDetailView::saveUpdate()
{
    std::string text(support::trimmed(*editMessage));
    if (text.empty()) return;
    action->run(save(held(this), std::move(text)));
}

Task<void> IncidentDetailView::save(std::shared_ptr<IncidentDetailView> self, std::string text)
{
    auto updating = self->ports_.api.updateIncident(self->incident->id, std::move(text));
    const Incident updated = co_await std::move(updating);
    self->take(updated);
    self->closeEditor();
}

}  // namespace larkspan::incidents
