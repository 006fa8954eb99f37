#pragma once

#include <cstdint>
#include <string>

#include "model/json/WireField.h"

namespace larkspan::model {

/// The number of views of a page in a period.
struct StatusPageAnalytics {
    WIRE_FIELD(std::string, period);
    WIRE_FIELD(std::int64_t, viewCount);

    bool operator==(const StatusPageAnalytics&) const = default;
};

/// The number of people who are notified of a page's events.
struct SubscriberCount {
    WIRE_FIELD(std::int64_t, count);

    bool operator==(const SubscriberCount&) const = default;
};

}  // namespace larkspan::model
