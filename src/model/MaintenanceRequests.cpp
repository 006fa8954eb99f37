#include "model/MaintenanceRequests.h"

namespace larkspan::model {

std::optional<std::string> joinedIds(const std::optional<std::vector<std::string>>& ids)
{
    if (!ids || ids->empty()) return std::nullopt;
    auto joined = ids->front();
    for (std::size_t at = 1; at < ids->size(); ++at) joined.append(",").append((*ids)[at]);
    return joined;
}

}  // namespace larkspan::model
