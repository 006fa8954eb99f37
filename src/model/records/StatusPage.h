#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/json/WireField.h"
#include "model/records/StatusPageStatus.h"
#include "model/records/URL.h"
#include "support/Time.h"

namespace larkspan::model {

/// The figures of a page for one period.
struct StatusPageMetric {
    WIRE_FIELD(std::string, period);
    WIRE_FIELD(std::optional<double>, uptime);
    WIRE_FIELD(std::optional<std::int64_t>, incidents);

    bool operator==(const StatusPageMetric&) const = default;
};

/// One status page of the account.
struct StatusPage {
    WIRE_FIELD(std::string, id);
    WIRE_FIELD(std::string, name);
    WIRE_FIELD(std::optional<std::string>, slug);
    WIRE_FIELD(std::optional<URL>, url);
    WIRE_FIELD(std::optional<std::string>, description);
    WIRE_FIELD(StatusPageStatus, status, otherwise(StatusPageStatus::unknown));
    WIRE_FIELD(std::optional<support::Time>, createdAt);
    WIRE_FIELD(std::optional<support::Time>, updatedAt);
    WIRE_FIELD(std::optional<std::vector<StatusPageMetric>>, metrics);

    bool operator==(const StatusPage&) const = default;
};

}  // namespace larkspan::model
