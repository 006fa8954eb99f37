#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/Time.h"

namespace larkspan::model {

/// A maintenance of one of the account's pages.
struct Maintenance {
    std::string id{};
    std::string title{};
    std::optional<std::string> message{};
    /// "scheduled", "in_progress" or "completed" by the dates and the moment of decoding; without a start and not yet
    /// over, whatever the service says.
    std::string status{};
    std::optional<support::Time> scheduledFor{};
    std::optional<support::Time> startedAt{};
    std::optional<support::Time> completedAt{};
    std::optional<support::Time> createdAt{};
    std::optional<support::Time> updatedAt{};
    std::optional<std::vector<std::string>> componentIds{};
    std::optional<std::string> statusPageId{};

    bool operator==(const Maintenance&) const = default;
};

}  // namespace larkspan::model
