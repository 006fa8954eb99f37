#include "presentation/forms/ComponentSelection.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "presentation/forms/ComponentGroupsOrNone.h"
#include "support/Child.h"
#include "support/LocalizedError.h"

namespace larkspan::presentation {

using model::ComponentMonitor;
using support::Child;
using support::Task;

ComponentSelection::ComponentSelection(
    Ports ports, std::string pageId, Words words, std::function<void(std::string)> alert)
    : ports_(ports)
    , pageId_(std::move(pageId))
    , words_(words)
    , alert_(std::move(alert))
{
}

void ComponentSelection::load()
{
    isLoadingComponents = true;
    support::start(ports_.main, fetchChoices(shared_from_this()));
}

Task<void> ComponentSelection::fetchChoices(std::shared_ptr<ComponentSelection> self)
{
    auto& api = self->ports_.components;
    Child<Components> fetchingComponents(self->ports_.main, api.fetchComponents(self->pageId_));
    Child<ComponentGroups> fetchingGroups(self->ports_.main, componentGroupsOrNone(api, self->pageId_));
    Components components;
    std::exception_ptr failure;
    try {
        auto awaitingComponents = fetchingComponents.result();
        components = co_await std::move(awaitingComponents);
    } catch (...) {
        failure = std::current_exception();
    }
    if (failure) {
        self->offer({}, {});
        if (self->words_.failure == ComponentFailure::told) self->tell("Could not load components: ", failure);
        self->isLoadingComponents = false;
        co_return;
    }
    auto awaitingGroups = fetchingGroups.result();
    ComponentGroups groups = co_await std::move(awaitingGroups);
    self->offer(std::move(components), std::move(groups));
    self->isLoadingComponents = false;
}

void ComponentSelection::offer(Components fetchedComponents, ComponentGroups fetchedGroups)
{
    components = std::move(fetchedComponents);
    componentGroups = std::move(fetchedGroups);
    offeredGroups_ = groupsWithComponents(*componentGroups, *components);
    offerComponentsOfGroup();
}

void ComponentSelection::offerComponentsOfGroup()
{
    offeredComponents_ = showsComponentPicker()
        ? componentsForGroup(*selectedComponentGroupID, *componentGroups, *components, ports_.locale)
        : Components();
}

void ComponentSelection::chooseGroup(const std::string& id)
{
    if (id == *selectedComponentGroupID) return;
    selectedComponentGroupID = id;
    selectedComponentID = {};
    forgetMonitors();
    offerComponentsOfGroup();
}

void ComponentSelection::chooseComponent(const std::string& id)
{
    if (id == *selectedComponentID) return;
    selectedComponentID = id;
    forgetMonitors();
    if (id.empty()) return;
    isLoadingMonitors = true;
    support::start(ports_.main, fetchMonitors(shared_from_this(), id));
}

void ComponentSelection::chooseMonitor(const std::string& id)
{
    if (id.empty() || isOffered(id)) selectedMonitorID = id;
}

const std::vector<ComponentMonitor>& ComponentSelection::offeredMonitors() const
{
    static const std::vector<ComponentMonitor> none;
    return selectedComponentID->empty() ? none : *componentMonitors;
}

bool ComponentSelection::isOffered(const std::string& monitorID) const
{
    return std::ranges::find(offeredMonitors(), monitorID, &ComponentMonitor::id) != offeredMonitors().end();
}

void ComponentSelection::forgetMonitors()
{
    selectedMonitorID = {};
    componentMonitors = {};
}

// A component's monitors are fetched once and kept, even if the user has chosen another component meanwhile.
Task<void> ComponentSelection::fetchMonitors(std::shared_ptr<ComponentSelection> self, std::string componentID)
{
    try {
        std::vector<std::string> ids{std::move(componentID)};
        auto fetching = self->ports_.monitors.fetchComponentMonitors(std::move(ids));
        std::vector<ComponentMonitor> fetched = co_await std::move(fetching);
        self->componentMonitors = std::move(fetched);
        // Only a visible choice is sent: a choice from another list is dropped with that list.
        if (!self->isOffered(*self->selectedMonitorID)) self->selectedMonitorID = {};
    } catch (...) {
        self->tell("Could not load monitors for this component: ", std::current_exception());
    }
    self->isLoadingMonitors = false;
}

void ComponentSelection::tell(std::string words, const std::exception_ptr& failure) const
{
    alert_(std::move(words) + support::localizedDescription(failure));
}

std::vector<Choice> ComponentSelection::groupChoices() const
{
    return choicesOf("Entire status page", offeredGroups_);
}

std::vector<Choice> ComponentSelection::componentChoices() const
{
    return choicesOf("Select a component", offeredComponents_);
}

std::vector<Choice> ComponentSelection::monitorChoices() const
{
    return choicesOf(std::string(words_.noMonitor), offeredMonitors());
}

std::string_view ComponentSelection::hint() const
{
    return showsComponentPicker() ? words_.hintForComponent : words_.hintForPage;
}

}  // namespace larkspan::presentation
