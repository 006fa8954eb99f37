#include "gallery/IncidentScenes.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "gallery/OpenedTab.h"
#include "gallery/ScreenStates.h"
#include "incidents/CreateIncidentView.h"
#include "incidents/IncidentDetailView.h"
#include "incidents/StatusPageIncidentsView.h"

namespace larkspan::gallery {

using namespace std::chrono_literals;
using model::Incident;
using model::IncidentStatus;

namespace {

using Page = workspace::StatusPageDetailView;
using Incidents = incidents::StatusPageIncidentsView;
using Detail = incidents::IncidentDetailView;
using Form = incidents::CreateIncidentView;

Incident incident(std::string id, std::string title, IncidentStatus status, std::optional<std::string> severity)
{
    Incident made;
    made.id = std::move(id);
    made.title = std::move(title);
    made.status = status;
    made.severityName = std::move(severity);
    made.createdAt = now() - 72min;
    return made;
}

std::vector<Incident> everyStatus()
{
    return {incident("1", "Login errors for EU customers", IncidentStatus::active, "critical"),
        incident("2", "Slow checkout", IncidentStatus::acknowledged, "minor"),
        incident("3",
            "Old outage with a title that goes on and on, far beyond what any window has room for in one line",
            IncidentStatus::resolved, "major"),
        incident("4", "Planned work", IncidentStatus::completed, "maintenance"),
        incident("5", "<b>Bold</b> &amp; حالة الخدمة 🐦", IncidentStatus::active, "SOMETHING else"),
        incident("6", "Without a severity", IncidentStatus::active, std::nullopt)};
}

constexpr const char* message = R"(# Sign-in
We see **elevated errors** on *sign-in*, see [the analysis](https://status.acme.example/analysis) and `auth-eu-1`.

## What is affected
- EU region only
- ~~US region~~
  - Retrying helps

1. Open the page
2. Try again

> We are very sorry.

| Region | Errors | Since |
|---|---|---|
| eu-central | 12 % | 09:30 |
| eu-west | 3 % |
A line right behind the table, with <b>HTML</b> that is text.)";

/// A scene of the tab "Incidents" of an opened page.
std::function<void(Stage&)> tab(std::function<void(Incidents&)> arrange)
{
    return sceneOfTab(Page::Tab::incidents, &Page::incidents, std::move(arrange));
}

void list(Incidents& view)
{
    view.viewModel->incidents = everyStatus();
    view.viewModel->isLoading = false;
}

void tenThousand(Incidents& view)
{
    std::vector<Incident> many;
    for (int number = 0; number < 10'000; ++number) {
        many.push_back(incident(std::to_string(number), "Incident " + std::to_string(number),
            number % 3 == 0 ? IncidentStatus::active : IncidentStatus::resolved, "minor"));
    }
    view.viewModel->incidents = std::move(many);
    view.viewModel->isLoading = false;
}

/// A scene of one incident, opened.
std::function<void(Stage&)> detail(Incident shown, std::function<void(Detail&)> arrange)
{
    return tab(withDetail(std::move(shown), &Incidents::openIncident, std::move(arrange)));
}

Incident whole()
{
    auto made = incident("1", "Login errors for EU customers", IncidentStatus::active, "critical");
    made.message = message;
    made.acknowledged = true;
    made.updatedAt = now() - 40min;
    made.assignedTo = "Ada Lovelace";
    return made;
}

Incident resolved()
{
    auto made = incident("1", "Old outage", IncidentStatus::resolved, std::nullopt);
    made.createdAt = now() - 50h;
    made.resolvedAt = now() - 48h + 5min;
    made.updatedAt = made.resolvedAt;
    return made;
}

void editing(Detail& view)
{
    view.beginEditing();
    view.editMessage = "A fix is on its way to the EU region.";
}

void aboutToDiscard(Detail& view)
{
    editing(view);
    view.requestClose();
}

void aboutToFollow(Detail& view)
{
    view.message->follow({.destination = "https://status.acme.example/analysis", .host = "status.acme.example"});
}

/// A scene of the form of a new incident.
std::function<void(Stage&)> form(std::function<void(Form&)> arrange)
{
    return tab(withForm(list, &Incidents::openCreateIncident, std::move(arrange)));
}

void loadingComponents(Form& view)
{
    view.selection->isLoadingComponents = true;
}

void wholeSelection(Form& view)
{
    view.selection->selectedComponentGroupID = "g";
    view.selection->isLoadingMonitors = true;
}

}  // namespace

std::vector<Scene> incidentScenes()
{
    return {
        {"incidents-list", tab(list)},
        {"incidents-list-narrow", tab(list), 480, 440},
        {"incidents-list-narrow-large-font", tab(list), 480, 440, 20},
        {"incidents-ten-thousand", tab(tenThousand)},
        {"incidents-loading", tab(initialState)},
        {"incidents-empty", tab(empty)},
        {"incidents-failed", tab(failed)},
        {"incident-whole", detail(whole(), initialState), 760, 900},
        {"incident-whole-narrow", detail(whole(), initialState), 480, 440},
        {"incident-whole-narrow-large-font", detail(whole(), initialState), 480, 900, 20},
        {"incident-resolved", detail(resolved(), initialState)},
        {"incident-editing", detail(whole(), editing)},
        {"incident-working", detail(resolved(), working)},
        {"incident-refused", detail(resolved(), refused)},
        {"incident-delete", detail(resolved(), aboutToDelete)},
        {"incident-discard", detail(whole(), aboutToDiscard)},
        {"incident-link", detail(whole(), aboutToFollow)},
        {"incident-form", form(initialState), 760, 760},
        {"incident-form-narrow-large-font", form(initialState), 480, 440, 20},
        {"incident-form-loading-components", form(loadingComponents), 760, 760},
        {"incident-form-loading-monitors", form(wholeSelection), 760, 760},
        {"incident-form-creating", form(working)},
        {"incident-form-refused", form(refused)},
    };
}

}  // namespace larkspan::gallery
