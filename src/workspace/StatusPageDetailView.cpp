#include "workspace/StatusPageDetailView.h"

#include <cstddef>
#include <utility>

#include "presentation/WebAddress.h"

namespace larkspan::workspace {

StatusPageDetailView::StatusPageDetailView(Ports ports, model::StatusPage opened)
    : page(*this, std::move(opened))
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
    case Tab::overview: break;
    case Tab::incidents:
        incidents_ = std::make_shared<incidents::StatusPageIncidentsView>(
            incidents::StatusPageIncidentsView::Ports{ports_.main, ports_.api, ports_.api, ports_.api,
                ports_.credentials, ports_.clock, ports_.locale, ports_.links},
            page->id);
        return incidents_->appear();
    case Tab::monitors:
        monitors_ = std::make_shared<monitors::StatusPageMonitorsView>(
            monitors::StatusPageMonitorsView::Ports{
                ports_.main, ports_.api, ports_.credentials, ports_.locale, ports_.links},
            *page);
        return monitors_->appear();
    case Tab::components:
        components_ = std::make_shared<components::StatusPageComponentsView>(
            components::StatusPageComponentsView::Ports{ports_.main, ports_.api, ports_.credentials, ports_.links},
            page->id);
        return components_->appear();
    case Tab::maintenances:
        maintenances_ = std::make_shared<maintenances::StatusPageMaintenancesView>(
            maintenances::StatusPageMaintenancesView::Ports{ports_.main, ports_.api, ports_.api, ports_.api,
                ports_.credentials, ports_.clock, ports_.locale, ports_.links},
            page->id);
        return maintenances_->appear();
    }
}

void StatusPageDetailView::selectNext()
{
    select(tabs[(static_cast<std::size_t>(*selectedTab) + 1) % tabs.size()]);
}

void StatusPageDetailView::selectPrevious()
{
    select(tabs[(static_cast<std::size_t>(*selectedTab) + tabs.size() - 1) % tabs.size()]);
}

StatusPageOverviewView StatusPageDetailView::overview() const
{
    return StatusPageOverviewView::of(*page, *ports_.appState, ports_.locale, ports_.clock.now());
}

bool StatusPageDetailView::hasUnsavedText() const
{
    return (incidents_ && incidents_->hasUnsavedText()) || (components_ && components_->hasUnsavedText())
        || (maintenances_ && maintenances_->hasUnsavedText());
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
