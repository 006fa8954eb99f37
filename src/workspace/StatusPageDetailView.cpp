#include "workspace/StatusPageDetailView.h"

#include <cstddef>
#include <utility>

#include "presentation/text/WebAddress.h"

namespace larkspan::workspace {

StatusPageDetailView::StatusPageDetailView(Ports ports, model::StatusPage opened)
    : page(*this, std::move(opened))
    , currentTime(*this, ports.clock.now())
    , ports_(std::move(ports))
{
}

support::Subscriptions StatusPageDetailView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), ports_.appState->objectWillChange(observer)};
}

void StatusPageDetailView::select(Tab tab)
{
    if (tab == *selectedTab) return;
    leave();
    enter(tab);
    selectedTab = tab;
}

void StatusPageDetailView::leave()
{
    incidents_.reset();
    monitors_.reset();
    components_.reset();
    maintenances_.reset();
}

void StatusPageDetailView::enter(Tab tab)
{
    switch (tab) {
    case Tab::overview: return;
    case Tab::incidents: return enterIncidents();
    case Tab::monitors: return enterMonitors();
    case Tab::components: return enterComponents();
    case Tab::maintenances: return enterMaintenances();
    }
}

void StatusPageDetailView::enterIncidents()
{
    const incidents::StatusPageIncidentsView::Ports ports{eventPorts(), ports_.api};
    incidents_ = std::make_shared<incidents::StatusPageIncidentsView>(ports, page->id);
    incidents_->appear();
}

void StatusPageDetailView::enterMonitors()
{
    const monitors::StatusPageMonitorsView::Ports ports{.main = ports_.main,
        .api = ports_.api,
        .credentials = ports_.credentials,
        .locale = ports_.locale,
        .links = ports_.links};
    monitors_ = std::make_shared<monitors::StatusPageMonitorsView>(ports, *page);
    monitors_->appear();
}

void StatusPageDetailView::enterComponents()
{
    const components::StatusPageComponentsView::Ports ports{
        .main = ports_.main, .api = ports_.api, .credentials = ports_.credentials, .links = ports_.links};
    components_ = std::make_shared<components::StatusPageComponentsView>(ports, page->id);
    components_->appear();
}

void StatusPageDetailView::enterMaintenances()
{
    const maintenances::StatusPageMaintenancesView::Ports ports{eventPorts(), ports_.api};
    maintenances_ = std::make_shared<maintenances::StatusPageMaintenancesView>(ports, page->id);
    maintenances_->appear();
}

presentation::EventListPorts StatusPageDetailView::eventPorts() const
{
    return {.main = ports_.main,
        .components = ports_.api,
        .monitors = ports_.api,
        .credentials = ports_.credentials,
        .clock = ports_.clock,
        .locale = ports_.locale,
        .links = ports_.links};
}

void StatusPageDetailView::selectNext()
{
    select(tabs[(static_cast<std::size_t>(*selectedTab) + 1) % tabs.size()]);
}

void StatusPageDetailView::selectPrevious()
{
    select(tabs[(static_cast<std::size_t>(*selectedTab) + tabs.size() - 1) % tabs.size()]);
}

void StatusPageDetailView::refresh()
{
    if (auto* const shown = list())
        shown->refresh();
    else
        ports_.appState->refreshNow();
}

presentation::ListScreen* StatusPageDetailView::list() const
{
    switch (*selectedTab) {
    case Tab::overview: break;
    case Tab::incidents: return incidents_.get();
    case Tab::monitors: return monitors_.get();
    case Tab::components: return components_.get();
    case Tab::maintenances: return maintenances_.get();
    }
    return nullptr;
}

StatusPageOverviewView StatusPageDetailView::overview() const
{
    return StatusPageOverviewView::of(*page, *ports_.appState, ports_.locale, ports_.clock.now());
}

bool StatusPageDetailView::isHeld() const
{
    return list() && list()->isHeld();
}

bool StatusPageDetailView::asksBefore(const std::function<void()>& leave)
{
    return list() && list()->asksBefore(leave);
}

void StatusPageDetailView::openPublicURL() const
{
    if (page->url && presentation::isWebAddress(page->url->text())) ports_.links.open(page->url->text());
}

std::string_view rawValue(StatusPageDetailView::Tab tab)
{
    using Tab = StatusPageDetailView::Tab;
    switch (tab) {
    case Tab::overview: return "Overview";
    case Tab::incidents: return "Incidents";
    case Tab::monitors: return "Monitors";
    case Tab::components: return "Components";
    case Tab::maintenances: break;
    }
    return "Maintenances";
}

}  // namespace larkspan::workspace
