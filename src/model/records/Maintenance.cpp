#include "model/records/Maintenance.h"

#include <algorithm>

#include "model/json/Decoding.h"

namespace larkspan::model {

namespace {

/// The dates decide; the service's word counts only if they cannot.
std::string statusOf(const Maintenance& maintenance, const KeyedValue& status)
{
    const auto now = status.now();
    const auto& end = maintenance.completedAt;
    const auto& start = maintenance.scheduledFor ? maintenance.scheduledFor : maintenance.startedAt;

    if (end && *end < now) return "completed";
    if (!start) return status.optional<std::string>().value_or("scheduled");
    if (*start > now) return "scheduled";
    return end == now ? "completed" : "in_progress";
}

}  // namespace

/// The ids are one text, separated by commas; empty ones are dropped, and blanks are part of an id.
void Maintenance::splitComponentIds(Maintenance& maintenance, const KeyedValue& affectedComponents)
{
    const auto text = affectedComponents.optional<std::string_view>();
    if (!text || text->empty()) return;

    auto& ids = maintenance.componentIds.emplace();
    for (auto rest = *text; !rest.empty();) {
        const auto id = rest.substr(0, rest.find(','));
        if (!id.empty()) ids.emplace_back(id);
        rest.remove_prefix(std::min(id.size() + 1, rest.size()));
    }
}

void Maintenance::deriveStatus(Maintenance& maintenance, const KeyedValue& status)
{
    maintenance.status = statusOf(maintenance, status);
}

}  // namespace larkspan::model
