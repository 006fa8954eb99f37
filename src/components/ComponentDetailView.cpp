#include "components/ComponentDetailView.h"

#include <algorithm>
#include <utility>

#include "api/OrderOutcome.h"
#include "model/records/URL.h"
#include "presentation/forms/ComponentGroupsOrNone.h"
#include "presentation/text/WebAddress.h"
#include "support/Trimming.h"
#include "support/UnlessEmpty.h"

namespace larkspan::components {

using model::Component;
using model::ComponentGroup;
using model::UpdateComponentRequest;
using presentation::Fact;
using support::Task;
using support::unlessEmpty;

namespace {

constexpr presentation::Confirmation deletion{
    .title = "Delete Component", .text = {}, .confirm = "Delete", .cancel = "Cancel"};

}  // namespace

ComponentDetailView::ComponentDetailView(Ports ports, std::string page, Component shown, Owner owner)
    : EditableDetail(
          ports.main, deletion, {.dismiss = std::move(owner.dismiss), .reloadList = std::move(owner.reloadList)})
    , pageId(std::move(page))
    , component(*this, std::move(shown))
    , ports_(ports)
    , onUpdate_(std::move(owner.onUpdate))
    , onDelete_(std::move(owner.onDelete))
{
}

void ComponentDetailView::appear()
{
    support::start(ports_.main, loadGroups(held(this)));
}

Task<void> ComponentDetailView::loadGroups(std::shared_ptr<ComponentDetailView> self)
{
    auto fetching = presentation::componentGroupsOrNone(self->ports_.api, self->pageId);
    std::vector<ComponentGroup> fetched = co_await std::move(fetching);
    self->groups = std::move(fetched);
}

const ComponentGroup* ComponentDetailView::group() const
{
    if (!component->groupId) return nullptr;
    const auto found = std::ranges::find(*groups, *component->groupId, &ComponentGroup::id);
    return found == groups->end() ? nullptr : &*found;
}

bool ComponentDetailView::showsDetails() const
{
    return group() || component->url;
}

std::vector<Fact> ComponentDetailView::details() const
{
    std::vector<Fact> facts;
    if (const auto* known = group()) facts.push_back({.label = "Group", .text = known->name, .symbol = "folder"});
    if (component->url && model::URL::parse(*component->url)) {
        facts.push_back({.label = "URL",
            .text = *component->url,
            .destination = presentation::isWebAddress(*component->url) ? *component->url : ""});
    }
    return facts;
}

void ComponentDetailView::openURL() const
{
    for (const auto& fact : details()) {
        if (!fact.destination.empty()) ports_.links.open(fact.destination);
    }
}

void ComponentDetailView::fillEditor()
{
    editedName = component->name;
    editedStatus = component->status;
    editedDescription = component->description.value_or("");
    editedGroupId = component->groupId;
}

bool ComponentDetailView::isEdited() const
{
    return *editedName != component->name || *editedStatus != component->status
        || *editedDescription != component->description.value_or("") || *editedGroupId != component->groupId;
}

std::optional<std::size_t> ComponentDetailView::selectedStatus() const
{
    const auto found = std::ranges::find(statusChoices, *editedStatus, &StatusChoice::value);
    if (found == statusChoices.end()) return std::nullopt;
    return static_cast<std::size_t>(found - statusChoices.begin());
}

std::string ComponentDetailView::unlistedStatus() const
{
    if (selectedStatus()) return "";
    if (editedStatus->empty()) return "There is no status yet.";
    return "Now “" + presentation::inPart(*editedStatus, presentation::mostOfARowsText)
        + "”, which stays until you choose another.";
}

void ComponentDetailView::chooseGroup(const std::string& id)
{
    editedGroupId = unlessEmpty(id);
}

bool ComponentDetailView::isSaveEnabled() const
{
    return isIdle() && !support::trimmed(*editedName).empty();
}

void ComponentDetailView::saveChanges()
{
    if (!isSaveEnabled()) return;
    action->run(save(held(this),
        {.name = std::string(support::trimmed(*editedName)),
            .description = unlessEmpty(*editedDescription),
            .status = *editedStatus,
            .groupId = *editedGroupId}));
}

Task<void> ComponentDetailView::save(std::shared_ptr<ComponentDetailView> self, UpdateComponentRequest changes)
{
    auto updating = self->ports_.api.updateComponent(self->component->id, std::move(changes));
    const Component answer = co_await std::move(updating);
    const Component updated = api::answerAbout(self->component->id, answer);
    self->component = updated;
    self->onUpdate_(updated);
    self->closeEditor();
}

Task<void> ComponentDetailView::remove()
{
    return deleteComponent(held(this));
}

Task<void> ComponentDetailView::deleteComponent(std::shared_ptr<ComponentDetailView> self)
{
    auto deleting = self->ports_.api.deleteComponent(self->component->id);
    co_await std::move(deleting);
    self->onDelete_(*self->component);
    self->dismiss();
}

}  // namespace larkspan::components
