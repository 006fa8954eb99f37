#include "gallery/Scene.h"

#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <exception>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include "api/APIError.h"
#include "gallery/ComponentScenes.h"
#include "gallery/IncidentScenes.h"
#include "gallery/MaintenanceScenes.h"
#include "gallery/MonitorScenes.h"
#include "gallery/PageScenes.h"
#include "model/json/DecodingError.h"
#include "platform/URLError.h"
#include "workspace/SettingsView.h"

namespace larkspan::gallery {

using namespace std::chrono_literals;
using core::AppStateManager;
using model::Incident;
using model::Maintenance;
using model::StatusPage;
using model::StatusPageStatus;

namespace {

constexpr const char* typedKey = "a key that nobody sees";

StatusPage page(std::string id, std::string name, StatusPageStatus status)
{
    StatusPage made;
    made.id = std::move(id);
    made.name = std::move(name);
    made.status = status;
    return made;
}

void refreshed(AppStateManager& state, std::vector<StatusPage> pages)
{
    state.statusPages = std::move(pages);
    state.lastRefresh = now() - 12s;
}

template <typename Error>
void failed(AppStateManager& state, const Error& error)
{
    state.refreshError = std::make_exception_ptr(error);
}

void everyStatus(AppStateManager& state)
{
    refreshed(state,
        {page("a", "Acme Cloud", StatusPageStatus::operational), page("b", "Beta Payments", StatusPageStatus::down),
            page("c", "Gamma Mail", StatusPageStatus::maintenance),
            page("d", "Echo Search", StatusPageStatus::degraded),
            page("e",
                "Delta Internal Tools with a very long name that is cut at the tail where the window has no room for it",
                StatusPageStatus::unknown)});
}

void staleList(AppStateManager& state)
{
    everyStatus(state);
    failed(state, api::APIError::httpStatus(503));
}

void oddNames(AppStateManager& state)
{
    refreshed(state,
        {page("a", "<b>Bold</b> &amp; <img src=x> __mnemonic__ &File", StatusPageStatus::operational),
            page("b", "حالة الخدمة", StatusPageStatus::degraded),
            page("c", "🐦 Birds 🪶", StatusPageStatus::operational),
            page("d", "日本語のステータスページ", StatusPageStatus::maintenance),
            page("e", "", StatusPageStatus::unknown), page("f", "two\nlines\tand a tab", StatusPageStatus::down)});
}

void thousandPages(AppStateManager& state)
{
    constexpr StatusPageStatus cycle[] = {StatusPageStatus::operational, StatusPageStatus::operational,
        StatusPageStatus::degraded, StatusPageStatus::operational, StatusPageStatus::unknown};
    std::vector<StatusPage> pages;
    for (std::size_t number = 1; number <= 1'000; ++number) {
        pages.push_back(page(std::to_string(number), "Status page " + std::to_string(number), cycle[number % 5]));
    }
    refreshed(state, std::move(pages));
}

void loading(AppStateManager& state)
{
    state.isLoading = true;
}

void missingKey(AppStateManager& state)
{
    failed(state, api::APIError::missingAPIKey());
}

void undecodable(AppStateManager& state)
{
    failed(state,
        model::DecodingError(model::DecodingError::Kind::dataCorrupted, "data[3].created_at",
            "Cannot decode date: the day before yesterday, or the one before that, nobody in the office remembers any more"));
}

Incident incident(std::string id, std::string title, model::IncidentStatus status)
{
    Incident made;
    made.id = std::move(id);
    made.title = std::move(title);
    made.status = status;
    return made;
}

Maintenance maintenance(std::string id, std::string status)
{
    Maintenance made;
    made.id = std::move(id);
    made.status = std::move(status);
    return made;
}

void rolledUp(AppStateManager& state)
{
    state.overallStatus = core::rolledUpStatus(
        *state.statusPages, *state.incidents, *state.maintenances, *state.refreshError != nullptr);
}

void busyDay(AppStateManager& state)
{
    everyStatus(state);
    state.incidents = std::vector{incident("1", "Login errors for EU customers", model::IncidentStatus::active),
        incident("2", "Slow checkout", model::IncidentStatus::acknowledged),
        incident("3", "An incident whose title is far too long for any menu to show it to its end",
            model::IncidentStatus::active)};
    state.maintenances = std::vector{maintenance("4", "in_progress")};
    rolledUp(state);
}

void quietDay(AppStateManager& state)
{
    refreshed(state, {page("a", "Acme Cloud", StatusPageStatus::operational)});
    rolledUp(state);
}

void offline(AppStateManager& state)
{
    quietDay(state);
    state.isReachable = false;
}

/// A scene that sets only the account's state.
std::function<void(Stage&)> with(std::function<void(AppStateManager&)> arrange)
{
    return [arrange = std::move(arrange)](Stage& stage) { arrange(stage.state()); };
}

void nothing(Stage&) {}

/// A scene of the settings sheet over an account without events.
std::function<void(Stage&)> settings(std::function<void(workspace::SettingsView&)> arrange)
{
    return [arrange = std::move(arrange)](Stage& stage) {
        quietDay(stage.state());
        stage.dashboard().openSettings();
        arrange(*stage.dashboard().settings());
    };
}

/// The same with a key in the store.
std::function<void(Stage&)> savedSettings(std::function<void(workspace::SettingsView&)> arrange)
{
    return [open = settings(std::move(arrange))](Stage& stage) {
        stage.storeKey();
        open(stage);
    };
}

using Kind = workspace::SettingsView::ValidationState::Kind;

void justOpened(workspace::SettingsView&) {}

void ofTheDemo(Stage& stage)
{
    stage.dashboard().demoKey = "demo";
    settings(justOpened)(stage);
}

void looking(workspace::SettingsView& sheet)
{
    // The stage's store answers at once, unlike a store that asks for a password.
    QTimer::singleShot(20, [settings = sheet.shared_from_this()] { settings->isLooking = true; });
}

void verifying(workspace::SettingsView& sheet)
{
    sheet.edit(typedKey);
    sheet.validationState = {Kind::validating};
}

void refused(workspace::SettingsView& sheet)
{
    sheet.edit(typedKey);
    sheet.validationState = {Kind::invalid, "Request timed out. Kestrune may be slow or unreachable."};
}

void connected(workspace::SettingsView& sheet)
{
    sheet.validationState = {Kind::valid};
}

void aboutToDelete(workspace::SettingsView& sheet)
{
    sheet.confirmDelete();
}

std::function<void(Stage&)> updates(std::optional<platform::UpdateCheck> finding)
{
    return [finding = std::move(finding)](Stage& stage) {
        quietDay(stage.state());
        stage.updates().checkForUpdates();
        stage.updates().finding = finding;
    };
}

void about(Stage& stage)
{
    quietDay(stage.state());
    stage.showAbout();
}

std::vector<Scene> dashboardScenes()
{
    return {
        {"dashboard-list", with(everyStatus)},
        {"dashboard-list-narrow", with(everyStatus), 480, 440},
        {"dashboard-list-wide", with(everyStatus), 1600, 900},
        {"dashboard-list-large-font", with(everyStatus), 760, 600, 20},
        {"dashboard-list-narrow-large-font", with(everyStatus), 480, 440, 20},
        {"dashboard-list-stale", with(staleList)},
        {"dashboard-list-stale-narrow", with(staleList), 480, 440},
        {"dashboard-list-stale-narrow-large-font", with(staleList), 480, 440, 20},
        {"dashboard-list-odd-names", with(oddNames)},
        {"dashboard-list-thousand", with(thousandPages)},
        {"dashboard-loading", with(loading)},
        {"dashboard-empty", nothing},
        {"dashboard-empty-narrow-large-font", nothing, 480, 440, 20},
        {"dashboard-error-missing-key", with(missingKey)},
        {"dashboard-error-transport", with([](AppStateManager& state) {
             failed(state, platform::URLError(platform::URLError::Code::cannotFindHost));
         })},
        {"dashboard-error-long", with(undecodable)},
        {"dashboard-error-long-narrow-large-font", with(undecodable), 480, 440, 20},
        {"dashboard-busy-day", with(busyDay)},
        {"dashboard-busy-day-narrow-large-font", with(busyDay), 480, 440, 20},
        {"dashboard-quiet-day", with(quietDay)},
        {"dashboard-offline", with(offline)},
        {"dashboard-intervals", with(quietDay), 760, 600, 10, "Refresh Interval"},
    };
}

std::vector<Scene> menuScenes()
{
    return {
        {"menu", with(busyDay), 760, 600, 10, "Menu"},
        {"menu-before-the-first-cycle", nothing, 760, 600, 10, "Menu"},
        {"menu-thousand", with(thousandPages), 760, 600, 10, "Menu"},
        {"menu-narrow-large-font", with(busyDay), 480, 440, 20, "Menu"},
    };
}

std::vector<Scene> settingsScenes()
{
    return {
        {"settings-no-key", settings(justOpened)},
        {"settings-demo", ofTheDemo},
        {"settings-demo-narrow", ofTheDemo, 480, 440},
        {"settings-looking", settings(looking)},
        {"settings-verifying", settings(verifying)},
        {"settings-refused", settings(refused)},
        {"settings-saved", savedSettings(justOpened)},
        {"settings-connected", savedSettings(connected)},
        {"settings-connected-narrow-large-font", savedSettings(connected), 480, 440, 20},
        {"settings-delete", savedSettings(aboutToDelete)},
        {"settings-refused-narrow", settings(refused), 480, 440},
        {"settings-refused-narrow-large-font", settings(refused), 480, 440, 20},
        {"settings-delete-narrow-large-font", savedSettings(aboutToDelete), 480, 440, 20},
    };
}

std::vector<Scene> otherScenes()
{
    using Finding = platform::UpdateCheck::Finding;
    return {
        {"about", about},
        {"about-narrow-large-font", about, 480, 440, 20},
        {"updates-checking", updates(std::nullopt)},
        {"updates-available", updates(platform::UpdateCheck{Finding::updateAvailable, "1.0", "1.1"})},
        {"updates-no-service", updates(platform::UpdateCheck{Finding::noPackageService})},
    };
}

/// The scenes of each kind that are also shown in high contrast.
constexpr std::array inHighContrast{"about", "component-editing", "components-list", "dashboard-error-transport",
    "dashboard-list", "dashboard-list-stale", "incident-delete", "incident-form", "incident-refused", "incident-whole",
    "maintenance-editing", "maintenance-scheduled", "maintenances-list", "menu", "monitor-whole", "monitors-list",
    "page-overview-busy", "settings-refused", "updates-checking"};

std::vector<Scene> withHighContrast(std::vector<Scene> scenes)
{
    for (const auto* const name : inHighContrast) {
        auto scene = *std::ranges::find(scenes, name, &Scene::name);
        scene.name += "-contrast";
        scene.hasHighContrast = true;
        scenes.push_back(std::move(scene));
    }
    return scenes;
}

}  // namespace

std::vector<Scene> scenes()
{
    auto scenes = dashboardScenes();
    std::ranges::move(pageScenes(), std::back_inserter(scenes));
    std::ranges::move(incidentScenes(), std::back_inserter(scenes));
    std::ranges::move(monitorScenes(), std::back_inserter(scenes));
    std::ranges::move(componentScenes(), std::back_inserter(scenes));
    std::ranges::move(maintenanceScenes(), std::back_inserter(scenes));
    std::ranges::move(menuScenes(), std::back_inserter(scenes));
    std::ranges::move(settingsScenes(), std::back_inserter(scenes));
    std::ranges::move(otherScenes(), std::back_inserter(scenes));
    return withHighContrast(std::move(scenes));
}

}  // namespace larkspan::gallery
