#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/AppStateManager.h"
#include "core/OverallStatus.h"
#include "fakes/FakeNetworkPathMonitor.h"
#include "fakes/FakeNotificationCenter.h"
#include "fakes/ManualTimers.h"
#include "fakes/Service.h"
#include "support/LocalizedError.h"

namespace larkspan::fakes {

/// The application's state over a fake service, with a key stored.
struct Account : Service {
    using Codes = std::vector<std::pair<std::string, std::string>>;

    core::AppStateManager::Ports ports() { return {main, timers, clock, notifications, network, api}; }

    std::shared_ptr<core::AppStateManager> remade() { return core::AppStateManager::make(ports()); }

    /// Runs one cycle as far as it gets.
    void refresh()
    {
        state->refreshNow();
        run();
    }

    /// The body of a status overview with these ids and codes.
    static std::string overview(const Codes& codes)
    {
        std::string entries;
        for (const auto& [id, code] : codes) {
            entries += (entries.empty() ? "" : ",") + std::string(R"({"id": ")") + id
                + R"(", "name": "n", "status": {"code": ")" + code + R"(", "label": "l"}})";
        }
        return R"({"status_pages": [)" + entries + "]}";
    }

    /// From now on the service has these pages, named after their ids, and this overview.
    void servePages(const std::vector<std::string>& ids, const Codes& codes)
    {
        std::string pages;
        for (const auto& id : ids) {
            pages += (pages.empty() ? "" : ",") + std::string(R"({"id": ")") + id + R"(", "name": ")" + id + R"("})";
        }
        transport.script(pagesURL, 200, "[" + pages + "]");
        transport.script(overviewURL, 200, overview(codes));
    }

    std::string error() const
    {
        return *state->refreshError ? support::localizedDescription(*state->refreshError) : "";
    }

    /// The published fields in a line.
    std::string snapshot() const
    {
        static constexpr const char* words[] = {"operational", "degraded", "down", "maintenance", "stale", "unknown"};
        return "pages " + std::to_string(state->statusPages->size()) + ", "
            + words[static_cast<std::size_t>(*state->overallStatus)] + (*state->isLoading ? ", loading" : ", idle")
            + (*state->lastRefresh ? ", refreshed" : ", never") + (*state->hasCompletedInitialFetch ? ", seeded" : "");
    }

    ManualTimers timers;
    FakeNotificationCenter notifications;
    FakeNetworkPathMonitor network;
    std::shared_ptr<core::AppStateManager> state = core::AppStateManager::make(ports());
};

}  // namespace larkspan::fakes
