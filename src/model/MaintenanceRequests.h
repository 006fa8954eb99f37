#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/Time.h"

namespace larkspan::model {

struct CreateMaintenanceRequest {
    std::string title{};
    std::optional<std::string> message{};
    std::string statusPageId{};
    support::Time startAt{};
    support::Time endAt{};
    std::optional<std::string> affectedComponents{};
    std::optional<std::string> affectedMonitorIds{};

    bool operator==(const CreateMaintenanceRequest&) const = default;
};

struct UpdateMaintenanceRequest {
    std::optional<std::string> title{};
    std::optional<std::string> message{};
    std::optional<support::Time> startAt{};
    std::optional<support::Time> endAt{};
    std::optional<std::string> affectedComponents{};
    std::optional<std::string> affectedMonitorIds{};

    bool operator==(const UpdateMaintenanceRequest&) const = default;
};

/// Ids as `affectedComponents` and `affectedMonitorIds` hold them: parted by commas, in their order. An empty list is
/// absent too, since the service is sent nothing for it.
std::optional<std::string> joinedIds(const std::optional<std::vector<std::string>>& ids);

}  // namespace larkspan::model
