#include "gallery/ComponentScenes.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "components/ComponentDetailView.h"
#include "components/StatusPageComponentsView.h"
#include "gallery/OpenedTab.h"
#include "gallery/ScreenStates.h"

namespace larkspan::gallery {

using model::Component;
using model::ComponentGroup;

namespace {

using Page = workspace::StatusPageDetailView;
using Components = components::StatusPageComponentsView;
using Detail = components::ComponentDetailView;

Component component(std::string id, std::string name, std::string status, std::optional<std::string> group = {},
    std::optional<std::string> description = {})
{
    Component made;
    made.id = std::move(id);
    made.name = std::move(name);
    made.status = std::move(status);
    made.groupId = std::move(group);
    made.description = std::move(description);
    return made;
}

ComponentGroup group(std::string id, std::string name)
{
    ComponentGroup made;
    made.id = std::move(id);
    made.name = std::move(name);
    return made;
}

std::vector<ComponentGroup> groups()
{
    return {group("api", "API"), group("web", "Web"),
        group("none",
            "A group without components, whose name is longer than a window of any size has room for in one line")};
}

std::vector<Component> everyStatus()
{
    return {component("1", "REST API", "up", "api", "Version 2, for customers."),
        component("2", "Webhooks", "DegradedPerformance", "api"),
        component("3", "Sign-in", "partialoutage", "api", "For customers in Europe and in North America."),
        component("4", "Dashboard", "down", "web", "Where customers sign in.\nIts description has two lines."),
        component("5",
            "Search with a name that goes on and on, far beyond what any window has room for in one line, at any size",
            "undermaintenance", "web",
            "Its description is long as well, and goes on in as many lines as it needs where the row has no room beside "
            "the status for all of it"),
        component("6", "<b>Bold</b> &amp; حالة الخدمة 🐦", "maintenance"),
        component("7", "Of a deleted group", "a status of many words that the service has never had before", "gone")};
}

/// A scene of the tab "Components" of an opened page.
std::function<void(Stage&)> tab(std::function<void(Components&)> arrange)
{
    return sceneOfTab(Page::Tab::components, &Page::components, std::move(arrange));
}

void list(Components& view)
{
    view.viewModel->components = everyStatus();
    view.viewModel->componentGroups = groups();
    view.viewModel->isLoading = false;
}

void withoutGroups(Components& view)
{
    list(view);
    view.viewModel->componentGroups = {};
}

void fiveThousand(Components& view)
{
    std::vector<Component> many;
    std::vector<ComponentGroup> manyGroups;
    for (int number = 0; number < 300; ++number) {
        manyGroups.push_back(group(std::to_string(number), "Group " + std::to_string(number)));
    }
    for (int number = 0; number < 5'000; ++number) {
        many.push_back(component(
            std::to_string(number), "Component " + std::to_string(number), "up", std::to_string(number % 300)));
    }
    view.viewModel->components = std::move(many);
    view.viewModel->componentGroups = std::move(manyGroups);
    view.viewModel->isLoading = false;
}

void unavailable(Components& view)
{
    view.viewModel->isLoading = false;
    view.viewModel->alert.raise(
        "Components are not available for this status page. Your plan may not include this feature.");
}

/// A scene of one component, opened.
std::function<void(Stage&)> detail(Component shown, std::function<void(Detail&)> arrange)
{
    return tab([shown = std::move(shown), arrange = std::move(arrange)](Components& view) {
        view.viewModel->components = std::vector{shown};
        view.viewModel->isLoading = false;
        view.openComponent(shown.id);
        view.detail()->groups = groups();
        arrange(*view.detail());
    });
}

Component whole()
{
    auto made = component("1", "REST API", "degraded", "api",
        "Version 2 of the interface, for customers in Europe and in North America. Requests are answered by the region "
        "that is nearest.\n\nVersion 1 was switched off in spring.");
    made.url = "https://status.acme.example/parts/rest-api";
    return made;
}

Component longest()
{
    auto made
        = component("1", "A component with a name that is longer than one line of any window has room for, surely",
            "a status of many words that the service has never had before", "none");
    made.url = "https://status.acme.example/parts/a/path/that/goes/on/and/on/until/nothing/of/it/fits/into/one/line";
    return made;
}

Component withBrokenURL()
{
    auto made = component("1", "REST API", "up");
    made.url = "not a url";
    return made;
}

void editing(Detail& view)
{
    view.beginEditing();
}

void editingWithoutGroups(Detail& view)
{
    view.groups = {};
    view.beginEditing();
}

void saving(Detail& view)
{
    view.beginEditing();
    view.action->isInProgress = true;
}

void refusedEdit(Detail& view)
{
    view.beginEditing();
    view.action->alert.raise("Server returned HTTP status code 422.");
}

void aboutToDiscard(Detail& view)
{
    view.beginEditing();
    view.editedName = "REST";
    view.requestClose();
}

}  // namespace

std::vector<Scene> componentScenes()
{
    return {
        {"components-list", tab(list)},
        {"components-list-narrow", tab(list), 480, 440},
        {"components-list-wide", tab(list), 1600, 900},
        {"components-list-narrow-large-font", tab(list), 480, 440, 20},
        {"components-list-without-groups", tab(withoutGroups)},
        {"components-five-thousand", tab(fiveThousand)},
        {"components-loading", tab(initialState)},
        {"components-empty", tab(empty)},
        {"components-failed", tab(unavailable)},
        {"components-failed-narrow-large-font", tab(unavailable), 480, 440, 20},
        {"component-whole", detail(whole(), initialState)},
        {"component-whole-narrow", detail(whole(), initialState), 480, 440},
        {"component-whole-wide", detail(whole(), initialState), 1600, 900},
        {"component-whole-narrow-large-font", detail(whole(), initialState), 480, 440, 20},
        {"component-longest-narrow", detail(longest(), initialState), 480, 440},
        {"component-longest-narrow-large-font", detail(longest(), initialState), 480, 440, 20},
        {"component-little-known", detail(component("1", "Webhooks", "operational"), initialState)},
        {"component-broken-url", detail(withBrokenURL(), initialState)},
        {"component-editing", detail(whole(), editing)},
        {"component-editing-narrow", detail(whole(), editing), 480, 440},
        {"component-editing-narrow-large-font", detail(whole(), editing), 480, 440, 20},
        {"component-editing-unlisted-status", detail(longest(), editing)},
        {"component-editing-without-groups", detail(whole(), editingWithoutGroups)},
        {"component-saving", detail(whole(), saving)},
        {"component-refused", detail(whole(), refusedEdit)},
        {"component-delete", detail(whole(), aboutToDelete)},
        {"component-discard", detail(whole(), aboutToDiscard)},
    };
}

}  // namespace larkspan::gallery
