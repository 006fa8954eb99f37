#pragma once

#include <algorithm>

#include "model/Decoding.h"
#include "model/KeyTable.h"
#include "model/Maintenance.h"

namespace larkspan::model {

/// The ids come in one text, parted by commas; empty ones are dropped and blanks belong to an id.
inline void splitComponentIds(Maintenance& maintenance, const KeyedValue& affectedComponents)
{
    const auto text = affectedComponents.optional<std::string>();
    if (!text || text->empty()) return;

    auto& ids = maintenance.componentIds.emplace();
    for (std::string_view rest = *text; !rest.empty();) {
        const auto id = rest.substr(0, rest.find(','));
        if (!id.empty()) ids.emplace_back(id);
        rest.remove_prefix(std::min(id.size() + 1, rest.size()));
    }
}

/// The dates decide; the service's own word counts only where none of them can.
inline std::string maintenanceStatus(const Maintenance& maintenance, const KeyedValue& status)
{
    const auto now = status.now();
    const auto& end = maintenance.completedAt;
    const auto& start = maintenance.scheduledFor ? maintenance.scheduledFor : maintenance.startedAt;

    if (end && *end < now) return "completed";
    if (!start) return status.optional<std::string>().value_or("scheduled");
    if (*start > now) return "scheduled";
    return end == now ? "completed" : "in_progress";
}

inline void deriveMaintenanceStatus(Maintenance& maintenance, const KeyedValue& status)
{
    maintenance.status = maintenanceStatus(maintenance, status);
}

template <>
struct KeyTable<Maintenance> {
    static constexpr auto rows = std::tuple{
        identifier("id", &Maintenance::id),
        required("title", &Maintenance::title),
        optional("message", &Maintenance::message),
        optional("startAt", &Maintenance::scheduledFor),
        optional("startedAt", &Maintenance::startedAt),
        optional("endAt", &Maintenance::completedAt),
        optional("createdAt", &Maintenance::createdAt),
        optional("updatedAt", &Maintenance::updatedAt),
        derived("affectedComponents", &splitComponentIds),
        optional("statusPageId", &Maintenance::statusPageId),
        derived("status", &deriveMaintenanceStatus),
    };
};

}  // namespace larkspan::model
