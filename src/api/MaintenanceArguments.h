#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/Time.h"

namespace larkspan::api {

using Ids = std::optional<std::vector<std::string>>;

/// The values of a new maintenance. An empty list of ids counts as none.
struct NewMaintenance {
    std::string title{};
    std::optional<std::string> message{};
    std::string statusPageId{};
    support::Time startAt{};
    support::Time endAt{};
    Ids componentIds{};
    Ids monitorIds{};

    bool operator==(const NewMaintenance&) const = default;
};

/// The changes of a maintenance; absent values are not changed, and an empty list of ids counts as absent.
struct MaintenanceChanges {
    std::optional<std::string> title{};
    std::optional<std::string> message{};
    std::optional<support::Time> startAt{};
    std::optional<support::Time> endAt{};
    Ids componentIds{};
    Ids monitorIds{};

    bool operator==(const MaintenanceChanges&) const = default;
};

}  // namespace larkspan::api
