#include "gallery/Scene.h"

#include <chrono>
#include <exception>
#include <string>
#include <utility>

#include "api/APIError.h"
#include "model/DecodingError.h"
#include "platform/URLError.h"

namespace larkspan::gallery {

using namespace std::chrono_literals;
using core::AppStateManager;
using model::StatusPage;
using model::StatusPageStatus;

namespace {

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
    state.lastRefresh = std::chrono::time_point_cast<std::chrono::milliseconds>(std::chrono::system_clock::now()) - 12s;
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

}  // namespace

std::vector<Scene> scenes()
{
    return {
        {"dashboard-list", everyStatus},
        {"dashboard-list-narrow", everyStatus, 480, 440},
        {"dashboard-list-wide", everyStatus, 1600, 900},
        {"dashboard-list-large-font", everyStatus, 760, 600, 20},
        {"dashboard-list-narrow-large-font", everyStatus, 480, 440, 20},
        {"dashboard-list-stale", staleList},
        {"dashboard-list-stale-narrow", staleList, 480, 440},
        {"dashboard-list-stale-narrow-large-font", staleList, 480, 440, 20},
        {"dashboard-list-odd-names", oddNames},
        {"dashboard-list-thousand", thousandPages},
        {"dashboard-loading", loading},
        {"dashboard-empty", [](AppStateManager&) {}},
        {"dashboard-empty-narrow-large-font", [](AppStateManager&) {}, 480, 440, 20},
        {"dashboard-error-missing-key", missingKey},
        {"dashboard-error-transport",
            [](AppStateManager& state) {
                failed(state, platform::URLError(platform::URLError::Code::cannotFindHost));
            }},
        {"dashboard-error-long", undecodable},
        {"dashboard-error-long-narrow-large-font", undecodable, 480, 440, 20},
    };
}

}  // namespace larkspan::gallery
