#pragma once

#include <cstdint>
#include <string>

#include "model/json/WireField.h"

namespace larkspan::model {

/// How often a page was looked at in some period.
struct StatusPageAnalytics {
    WIRE_FIELD(std::string, period);
    WIRE_FIELD(std::int64_t, viewCount);

    bool operator==(const StatusPageAnalytics&) const = default;
};

/// How many people are told of what happens to a page.
struct SubscriberCount {
    WIRE_FIELD(std::int64_t, count);

    bool operator==(const SubscriberCount&) const = default;
};

}  // namespace larkspan::model
