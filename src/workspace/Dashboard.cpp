#include "workspace/Dashboard.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "presentation/CompactRelativeTimeFormatter.h"
#include "presentation/StatusPagePresentation.h"
#include "support/LocalizedError.h"

namespace larkspan::workspace {

using namespace std::chrono_literals;
using presentation::CompactRelativeTimeFormatter;
using presentation::StatusPagePresentation;
using presentation::Tone;

namespace {

Dashboard::Row row(const model::StatusPage& page)
{
    const auto shown = StatusPagePresentation::of(page.status);
    return {.id = page.id,
        .name = page.name,
        .symbol = std::string(shown.symbol),
        .tone = shown.tone,
        .label = std::string(shown.label)};
}

}  // namespace

Dashboard::Dashboard(Ports ports)
    : currentTime(*this, ports.clock.now())
    , ports_(std::move(ports))
    , tick_(ports_.timers.every(10s, [this] { currentTime = ports_.clock.now(); }))
    , openStatusPage_(ports_.appState->inProcessNotifications().observe(
          core::InProcessNotifications::openStatusPage, [this](const std::string& id) { selectedPageId = id; }))
{
}

std::array<support::Subscription, 2> Dashboard::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), ports_.appState->objectWillChange(observer)};
}

Dashboard::Content Dashboard::content() const
{
    if (!state().statusPages->empty()) return Content::list;
    if (*state().isLoading) return Content::loading;
    return *state().refreshError ? Content::error : Content::empty;
}

Dashboard::Placeholder Dashboard::placeholder() const
{
    switch (content()) {
    case Content::loading: return {.symbol = {}, .title = {}, .text = "Loading Dashboard...", .showsProgress = true};
    case Content::error:
        return {.symbol = "exclamationmark.triangle",
            .tone = Tone::orange,
            .title = "Couldn’t Refresh",
            .text = support::localizedDescription(*state().refreshError),
            .offersSettings = true,
            .offersRetry = true};
    case Content::empty:
        return {.symbol = "doc.text.magnifyingglass",
            .title = "No Status Pages",
            .text = "Add your Kestrune API key in Settings to get started.",
            .offersSettings = true};
    case Content::list: break;
    }
    return {};
}

std::vector<Dashboard::Row> Dashboard::rows() const
{
    std::vector<Row> rows;
    rows.reserve(state().statusPages->size());
    std::ranges::transform(*state().statusPages, std::back_inserter(rows), row);
    return rows;
}

std::optional<std::size_t> Dashboard::selectedRow() const
{
    const auto& pages = *state().statusPages;
    const auto selected = std::ranges::find(pages, *selectedPageId, &model::StatusPage::id);
    if (selected == pages.end()) return std::nullopt;
    return static_cast<std::size_t>(selected - pages.begin());
}

bool Dashboard::showsRefreshFailure() const
{
    return content() == Content::list && *state().refreshError;
}

Dashboard::StatusText Dashboard::statusText() const
{
    if (*state().isLoading) return {.text = "Refreshing...", .showsProgress = true};
    if (!*state().lastRefresh) return {};
    return {.text = "Updated " + CompactRelativeTimeFormatter::relativeText(**state().lastRefresh, *currentTime),
        .showsWarning = *state().refreshError != nullptr};
}

bool Dashboard::isRefreshEnabled() const
{
    return !*state().isLoading;
}

void Dashboard::refresh()
{
    ports_.credentials.allowPromptAgain();
    ports_.appState->refreshNow();
}

void Dashboard::chooseRefreshInterval(std::chrono::seconds interval)
{
    ports_.appState->setRefreshInterval(interval);
}

void Dashboard::openSettings()
{
    if (*showingSettings) return;
    ports_.credentials.allowPromptAgain();
    const auto onApiKeyDeleted = [appState = ports_.appState] { appState->clearAccountData(); };
    settings_ = std::make_shared<Settings>(Settings::Ports{ports_.main, ports_.appState, ports_.keys}, onApiKeyDeleted);
    settings_->appear();
    showingSettings = true;
}

void Dashboard::closeSettings()
{
    if (!*showingSettings) return;
    showingSettings = false;
    settings_.reset();
    refresh();
}

std::string refreshIntervalLabel(std::chrono::seconds interval)
{
    const auto seconds = interval.count();
    if (seconds <= 59) return "Every " + std::to_string(seconds) + " seconds";
    return "Every " + std::to_string(seconds / 60) + " minute" + (seconds <= 119 ? "" : "s");
}

}  // namespace larkspan::workspace
