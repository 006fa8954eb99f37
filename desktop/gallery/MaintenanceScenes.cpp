#include "gallery/MaintenanceScenes.h"

#include <chrono>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "gallery/OpenedTab.h"
#include "gallery/ScreenStates.h"
#include "maintenances/CreateMaintenanceView.h"
#include "maintenances/MaintenanceDetailView.h"
#include "maintenances/StatusPageMaintenancesView.h"

namespace larkspan::gallery {

using namespace std::chrono_literals;
using model::Maintenance;

namespace {

using Page = workspace::StatusPageDetailView;
using Maintenances = maintenances::StatusPageMaintenancesView;
using Detail = maintenances::MaintenanceDetailView;
using Form = maintenances::CreateMaintenanceView;

Maintenance maintenance(std::string id, std::string title, std::string status)
{
    Maintenance made;
    made.id = std::move(id);
    made.title = std::move(title);
    made.status = std::move(status);
    made.scheduledFor = now() - 40min;
    made.completedAt = now() + 80min;
    return made;
}

std::vector<Maintenance> everyStatus()
{
    auto undated = maintenance("5", "<b>Bold</b> &amp; حالة الخدمة 🐦", "cancelled");
    undated.scheduledFor = std::nullopt;
    return {maintenance("1", "Database upgrade in the EU region", "scheduled"),
        maintenance("2", "New certificates", "in_progress"),
        maintenance("3",
            "Old work with a title that goes on and on, far beyond what any window has room for in one line",
            "completed"),
        undated};
}

constexpr const char* message = R"(We move the **primary database** to new hardware, see
[the plan](https://status.acme.example/plan).

- EU region only
- Reading goes on, writing is paused for a minute
)";

/// A scene of the tab "Maintenances" of an opened page.
std::function<void(Stage&)> tab(std::function<void(Maintenances&)> arrange)
{
    return sceneOfTab(Page::Tab::maintenances, &Page::maintenances, std::move(arrange));
}

void list(Maintenances& view)
{
    view.viewModel->maintenances = everyStatus();
    view.viewModel->isLoading = false;
}

/// A scene of one maintenance, opened.
std::function<void(Stage&)> detail(Maintenance shown, std::function<void(Detail&)> arrange)
{
    return tab(withDetail(std::move(shown), &Maintenances::openMaintenance, std::move(arrange)));
}

Maintenance whole(const std::string& status)
{
    auto made = maintenance("1", "Database upgrade in the EU region", status);
    made.message = message;
    made.startedAt = *made.scheduledFor + 2min;
    made.createdAt = now() - 50h;
    made.updatedAt = now() - 5min;
    return made;
}

Maintenance planned()
{
    auto made = maintenance("1", "New certificates", "scheduled");
    made.createdAt = now() - 50h;
    return made;
}

void editing(Detail& view)
{
    view.beginEditing();
}

void endBeforeStart(Detail& view)
{
    view.beginEditing();
    view.editedScheduledUntil->moveMonths(-1);
}

void aboutToDiscard(Detail& view)
{
    view.beginEditing();
    view.editedTitle = "Database upgrade";
    view.requestClose();
}

/// A scene of the form of a new maintenance.
std::function<void(Stage&)> form(std::function<void(Form&)> arrange)
{
    return tab(withForm(list, &Maintenances::openCreateMaintenance, std::move(arrange)));
}

void loadingMonitors(Form& view)
{
    view.selection->selectedComponentGroupID = "g";
    view.selection->isLoadingMonitors = true;
}

void wrongEnd(Form& view)
{
    view.title = "Upgrade";
    view.scheduledUntil->moveDays(-1);
}

void otherMonth(Form& view)
{
    view.scheduledFor->browseMonths(1);
}

void withoutComponents(Form& view)
{
    view.action->alert.raise("Could not load components: Server returned HTTP status code 503.");
}

}  // namespace

std::vector<Scene> maintenanceScenes()
{
    return {
        {"maintenances-list", tab(list)},
        {"maintenances-list-narrow", tab(list), 480, 440},
        {"maintenances-list-narrow-large-font", tab(list), 480, 440, 20},
        {"maintenances-loading", tab(initialState)},
        {"maintenances-empty", tab(empty)},
        {"maintenances-failed", tab(failed)},
        {"maintenance-scheduled", detail(planned(), initialState)},
        {"maintenance-in-progress", detail(whole("in_progress"), initialState), 760, 700},
        {"maintenance-completed", detail(whole("completed"), initialState), 760, 700},
        {"maintenance-cancelled", detail(maintenance("1", "Called off", "cancelled"), initialState)},
        {"maintenance-narrow", detail(whole("in_progress"), initialState), 480, 700},
        {"maintenance-narrow-large-font", detail(whole("scheduled"), initialState), 480, 900, 20},
        {"maintenance-menu", detail(planned(), initialState), 760, 600, 10, "More Actions"},
        {"maintenance-editing", detail(whole("scheduled"), editing)},
        {"maintenance-editing-wide", detail(whole("scheduled"), editing), 1600, 900},
        {"maintenance-editing-beside-each-other", detail(whole("scheduled"), editing), 640, 600},
        {"maintenance-editing-narrow", detail(whole("scheduled"), editing), 480, 1400},
        {"maintenance-editing-narrow-large-font", detail(whole("scheduled"), editing), 480, 1400, 20},
        {"maintenance-end-before-start", detail(whole("scheduled"), endBeforeStart)},
        {"maintenance-working", detail(planned(), working)},
        {"maintenance-refused", detail(planned(), refused)},
        {"maintenance-delete", detail(planned(), aboutToDelete)},
        {"maintenance-discard", detail(planned(), aboutToDiscard)},
        {"maintenance-form", form(initialState), 760, 760},
        {"maintenance-form-wide", form(initialState), 1600, 900},
        {"maintenance-form-beside-each-other", form(initialState), 640, 760},
        {"maintenance-form-end-before-start", form(wrongEnd), 760, 760},
        {"maintenance-form-small-window", form(initialState)},
        {"maintenance-form-narrow", form(initialState), 480, 1250},
        {"maintenance-form-narrow-large-font", form(initialState), 480, 1400, 20},
        {"maintenance-form-loading-monitors", form(loadingMonitors), 760, 760},
        {"maintenance-form-other-month", form(otherMonth), 760, 760},
        {"maintenance-form-creating", form(working)},
        {"maintenance-form-without-components", form(withoutComponents)},
    };
}

}  // namespace larkspan::gallery
