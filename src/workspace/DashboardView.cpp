#include "workspace/DashboardView.h"

#include <algorithm>
#include <utility>

#include "presentation/screens/RowsOf.h"
#include "presentation/time/CompactRelativeTimeFormatter.h"
#include "support/WhileAlive.h"
#include "workspace/SettingsView.h"
#include "workspace/StatusPageDetailView.h"
#include "workspace/StatusPageRow.h"

namespace larkspan::workspace {

using namespace std::chrono_literals;
using presentation::CompactRelativeTimeFormatter;
using presentation::Content;
using presentation::Marker;
using presentation::Placeholder;
using presentation::Tone;

DashboardView::DashboardView(Ports ports)
    : currentTime(*this, ports.clock.now())
    , ports_(std::move(ports))
    , tick_(ports_.timers.every(10s, [this] { tick(); }))
    , openStatusPage_(ports_.appState->inProcessNotifications().observe(
          core::InProcessNotifications::openStatusPage, [this](const std::string& id) { openPage(id); }))
    , accountChanges_(ports_.main, *ports_.appState, [this] { followOpenedPage(); })
{
}

void DashboardView::tick()
{
    currentTime = ports_.clock.now();
    if (openedPage.isOpen()) openedPage.screen()->currentTime = ports_.clock.now();
}

support::Subscriptions DashboardView::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), ports_.appState->objectWillChange(observer)};
}

Content DashboardView::content() const
{
    return presentation::contentOf(!state().statusPages->empty(), *state().isLoading, *state().refreshError != nullptr);
}

Placeholder DashboardView::placeholder() const
{
    static const presentation::Placeholders placeholders{.loading = "Loading Dashboard...",
        .failure = {.symbol = "exclamationmark.triangle",
            .tone = Tone::orange,
            .title = "Couldn’t Refresh",
            .offersSettings = true,
            .offersRetry = true},
        .empty = {.symbol = "doc.text.magnifyingglass",
            .title = "No Status Pages",
            .text = "Add your Kestrune API key in Settings to get started.",
            .offersSettings = true}};
    return presentation::placeholderOf(content(), placeholders, presentation::failureText(*state().refreshError));
}

std::vector<StatusPageRow> DashboardView::rows() const
{
    return presentation::rowsOf(*state().statusPages, StatusPageRow::of);
}

std::optional<std::size_t> DashboardView::selectedRow() const
{
    const auto& pages = *state().statusPages;
    const auto* const selected = *selectedPageId ? presentation::recordOfRow(pages, **selectedPageId) : nullptr;
    if (!selected) return std::nullopt;
    return static_cast<std::size_t>(selected - pages.data());
}

bool DashboardView::showsRefreshFailure() const
{
    return content() == Content::records && *state().refreshError;
}

Marker DashboardView::status() const
{
    if (*state().isLoading) return {.text = "Refreshing...", .showsProgress = true};
    if (!*state().lastRefresh) return {};
    auto text = "Updated " + CompactRelativeTimeFormatter::relativeText(**state().lastRefresh, *currentTime);
    if (!*state().refreshError) return {.text = std::move(text)};
    return {.symbol = "exclamationmark.triangle.fill",
        .symbolTone = Tone::orange,
        .text = std::move(text),
        .tone = Tone::primary};
}

bool DashboardView::isRefreshEnabled() const
{
    return !*state().isLoading;
}

void DashboardView::chooseRefreshInterval(std::chrono::seconds interval)
{
    ports_.appState->setRefreshInterval(interval);
}

const model::StatusPage* DashboardView::selectedPage() const
{
    const auto row = selectedRow();
    return row ? &(*state().statusPages)[*row] : nullptr;
}

void DashboardView::openPage(const std::string& id)
{
    if (openedPage.isOpen() && *selectedPageId == id) return;
    if (!asksBefore(support::whileAlive(weak_from_this(), [id](DashboardView& self) { self.showPage(id); })))
        showPage(id);
}

bool DashboardView::asksBefore(const std::function<void()>& leave)
{
    return openedPage.isOpen() && openedPage.screen()->asksBefore(leave);
}

void DashboardView::showPage(const std::string& id)
{
    selectedPageId = id;
    const auto* const page = selectedPage();
    if (page)
        openedPage.open(screenOf(*page));
    else
        openedPage.close();
}

std::shared_ptr<StatusPageDetailView> DashboardView::screenOf(const model::StatusPage& page) const
{
    StatusPageDetailView::Ports ports{
        ports_.main, ports_.clock, ports_.locale, ports_.links, ports_.credentials, ports_.api, ports_.appState};
    return std::make_shared<StatusPageDetailView>(std::move(ports), page);
}

void DashboardView::closePage()
{
    selectedPageId = std::nullopt;
    openedPage.close();
}

void DashboardView::followOpenedPage()
{
    const auto lists = state().publishedLists();
    const bool isOfNewLists = std::exchange(followedLists_, lists) != lists;
    if (!openedPage.isOpen()) return;
    auto& opened = *openedPage.screen();
    if (const auto* const page = selectedPage()) {
        if (*page != *opened.page) opened.page = *page;
        return;
    }
    // One list without it may be the service's slip, and is no reason to lose what is typed or how an order ends.
    if (isOfNewLists && !opened.isHeld()) closePage();
}

void DashboardView::openSettings()
{
    if (showingSettings.isOpen()) return;
    ports_.credentials.allowPromptAgain();
    const auto onApiKeyDeleted = [appState = ports_.appState] { appState->clearAccountData(); };
    const SettingsView::Ports ports{ports_.main, ports_.appState, ports_.keys, demoKey};
    showingSettings.open(std::make_shared<SettingsView>(ports, onApiKeyDeleted));
}

void DashboardView::closeSettings()
{
    if (showingSettings.close()) refresh();
}

std::string refreshIntervalLabel(std::chrono::seconds interval)
{
    const auto seconds = interval.count();
    if (seconds <= 59) return "Every " + std::to_string(seconds) + " seconds";
    return "Every " + std::to_string(seconds / 60) + " minute" + (seconds <= 119 ? "" : "s");
}

}  // namespace larkspan::workspace
