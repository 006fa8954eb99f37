#pragma once

#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "model/json/WireField.h"
#include "support/Time.h"

namespace larkspan::model {

/// A maintenance of one of the account's pages.
struct Maintenance {
    WIRE_FIELD(std::string, id, identifier);
    WIRE_FIELD(std::string, title);
    WIRE_FIELD(std::optional<std::string>, message);
    /// "scheduled", "in_progress" or "completed" by the dates and the moment of decoding; without a start, and if the
    /// end is not past, the service's word.
    std::string status{};
    WIRE_FIELD(std::optional<support::Time>, scheduledFor, key("startAt"));
    WIRE_FIELD(std::optional<support::Time>, startedAt);
    WIRE_FIELD(std::optional<support::Time>, completedAt, key("endAt"));
    WIRE_FIELD(std::optional<support::Time>, createdAt);
    WIRE_FIELD(std::optional<support::Time>, updatedAt);
    std::optional<std::vector<std::string>> componentIds{};
    WIRE_FIELD(std::optional<std::string>, statusPageId);

    static void splitComponentIds(Maintenance& maintenance, const KeyedValue& affectedComponents);
    static void deriveStatus(Maintenance& maintenance, const KeyedValue& status);
    static constexpr std::tuple derivations{
        derived("affectedComponents", &splitComponentIds),
        derived("status", &deriveStatus),
    };

    bool operator==(const Maintenance&) const = default;
};

}  // namespace larkspan::model
