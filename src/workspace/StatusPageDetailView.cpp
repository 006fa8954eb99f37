#include "workspace/StatusPageDetailView.h"

#include <utility>

#include "components/StatusPageComponentsView.h"
#include "incidents/StatusPageIncidentsView.h"
#include "maintenances/StatusPageMaintenancesView.h"
#include "monitors/StatusPageMonitorsView.h"
#include "presentation/forms/EventListPorts.h"
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
    if (tab == selectedTab()) return;
    opened_ = screenOf(tab);
    if (auto* const shown = list()) shown->appear();
}

StatusPageDetailView::OpenedTab StatusPageDetailView::screenOf(Tab tab) const
{
    switch (tab) {
    case Tab::overview: break;
    case Tab::incidents:
        return std::make_shared<incidents::StatusPageIncidentsView>(
            incidents::StatusPageIncidentsView::Ports{eventPorts(), ports_.api}, page->id);
    case Tab::monitors:
        return std::make_shared<monitors::StatusPageMonitorsView>(
            monitors::StatusPageMonitorsView::Ports{.main = ports_.main,
                .api = ports_.api,
                .credentials = ports_.credentials,
                .locale = ports_.locale,
                .links = ports_.links},
            *page);
    case Tab::components:
        return std::make_shared<components::StatusPageComponentsView>(
            components::StatusPageComponentsView::Ports{
                .main = ports_.main, .api = ports_.api, .credentials = ports_.credentials, .links = ports_.links},
            page->id);
    case Tab::maintenances:
        return std::make_shared<maintenances::StatusPageMaintenancesView>(
            maintenances::StatusPageMaintenancesView::Ports{eventPorts(), ports_.api}, page->id);
    }
    return std::monostate();
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
    select(tabs[(opened_->index() + 1) % tabs.size()]);
}

void StatusPageDetailView::selectPrevious()
{
    select(tabs[(opened_->index() + tabs.size() - 1) % tabs.size()]);
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
    const auto listOf = [](const auto& screen) -> presentation::ListScreen* {
        if constexpr (requires { screen.get(); })
            return screen.get();
        else
            return nullptr;
    };
    return std::visit(listOf, *opened_);
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
    const auto& url = page->url;
    if (url && presentation::isWebAddress(url->text())) ports_.links.open(url->text());
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
