#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "fakes/OpenedDetail.h"
#include "maintenances/MaintenanceDetailView.h"

namespace larkspan::maintenances {

using Words = std::vector<std::string>;

inline const std::string recordURL = "https://service.example/user/api/v1/maintenances/7";

inline std::string record(const std::string& rest = "")
{
    return R"({"id": "7", "title": "Upgrade", "status_page_id": "p")" + rest + "}";
}

// The time is nine in the morning.
inline const std::string isScheduled = R"(, "start_at": "2026-11-20T10:00:00Z", "end_at": "2026-11-20T12:00:00Z")";
inline const std::string isInProgress = R"(, "start_at": "2026-11-20T08:00:00Z", "end_at": "2026-11-20T12:00:00Z")";
inline const std::string isCompleted = R"(, "start_at": "2026-11-20T07:00:00Z", "end_at": "2026-11-20T08:30:00Z")";
inline const std::string isCancelled = R"(, "status": "cancelled")";

/// A maintenance "7" on the screen.
class DetailOfAMaintenance : public fakes::OpenedDetail<MaintenanceDetailView> {
protected:
    std::shared_ptr<MaintenanceDetailView> opened(const std::string& rest = isScheduled)
    {
        MaintenanceDetailView::Owner owner{
            .onUpdate = [this](const model::Maintenance& changed) { note("update " + changed.status); },
            .onDelete = [this](const model::Maintenance& deleted) { note("delete " + deleted.id); },
            .dismiss = [this] { note("dismiss"); }};
        view = std::make_shared<MaintenanceDetailView>(MaintenanceDetailView::Ports{main, api, clock, locale, links},
            decoded<model::Maintenance>(record(rest)), std::move(owner));
        return view;
    }

    std::shared_ptr<MaintenanceDetailView> editing(const std::string& rest = isScheduled)
    {
        opened(rest)->beginEditing();
        return view;
    }

    void answer(const std::string& rest) { transport.script(recordURL, 200, record(rest)); }

    /// The requests with their bodies.
    Words sent() const
    {
        Words lines = ScriptedService::sent();
        for (std::size_t at = 0; at < lines.size(); ++at) {
            const auto& body = transport.requests.at(at).body;
            if (body) lines[at] += " " + *body;
        }
        return lines;
    }
};

}  // namespace larkspan::maintenances
