#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/AppStateManager.h"
#include "core/OverallStatus.h"
#include "fakes/FakeDesktop.h"
#include "fakes/ScriptedService.h"
#include "support/LocalizedError.h"

namespace larkspan::fakes {

/// The application's state over a fake service, with a key stored.
struct PolledAccount : ScriptedService, FakeDesktop {
    using Codes = std::vector<std::pair<std::string, std::string>>;

    /// An account without incidents and maintenances, until the test adds some.
    PolledAccount()
    {
        serveIncidents({});
        serveMaintenances({});
    }

    static std::string incident(const std::string& id, const std::string& title, const std::string& rest = "")
    {
        return R"({"id": ")" + id + R"(", "title": ")" + title + R"(", "created_at": "2026-11-20T09:30:00Z")" + rest
            + "}";
    }

    /// A maintenance without dates has the status in `rest`.
    static std::string maintenance(const std::string& id, const std::string& title, const std::string& rest = "")
    {
        return R"({"id": ")" + id + R"(", "title": ")" + title + R"(")" + rest + "}";
    }

    core::AppStateManager::Ports ports() { return FakeDesktop::ports(main, clock, credentials, api); }

    std::shared_ptr<core::AppStateManager> remade() { return core::AppStateManager::make(ports()); }

    /// Runs one cycle as far as possible.
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

    /// Gives the service these pages, named after their ids, and this overview.
    void servePages(const std::vector<std::string>& ids, const Codes& codes)
    {
        std::string pages;
        for (const auto& id : ids) {
            pages += (pages.empty() ? "" : ",") + std::string(R"({"id": ")") + id + R"(", "name": ")" + id + R"("})";
        }
        transport.script(pagesURL, 200, "[" + pages + "]");
        transport.script(overviewURL, 200, overview(codes));
    }

    /// Gives the service these incidents, a list of JSON objects.
    void serveIncidents(const std::vector<std::string>& incidents)
    {
        transport.script(incidentsURL, 200, list(incidents));
    }

    /// Gives the service these maintenances, a list of JSON objects.
    void serveMaintenances(const std::vector<std::string>& maintenances)
    {
        transport.script(maintenancesURL, 200, list(maintenances));
    }

    std::string error() const
    {
        return *state->refreshError ? support::localizedDescription(*state->refreshError) : "";
    }

    /// The published fields in a line.
    std::string snapshot() const
    {
        static constexpr const char* words[] = {"operational", "degraded", "down", "maintenance", "stale", "unknown"};
        return "pages " + std::to_string(state->statusPages->size()) + records() + ", "
            + words[static_cast<std::size_t>(*state->overallStatus)] + (*state->isLoading ? ", loading" : ", idle")
            + (*state->lastRefresh ? ", refreshed" : ", never") + (*state->hasCompletedInitialFetch ? ", seeded" : "");
    }

    std::shared_ptr<core::AppStateManager> state = core::AppStateManager::make(ports());

private:
    std::string records() const
    {
        std::string counts;
        if (!state->incidents->empty()) counts += " incidents " + std::to_string(state->incidents->size());
        if (!state->maintenances->empty()) counts += " maintenances " + std::to_string(state->maintenances->size());
        return counts;
    }

    static std::string list(const std::vector<std::string>& records)
    {
        std::string joined;
        for (const auto& record : records) joined += (joined.empty() ? "" : ",") + record;
        return "[" + joined + "]";
    }
};

}  // namespace larkspan::fakes
