#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/StatusPageStatus.h"
#include "model/URL.h"
#include "support/Time.h"

namespace larkspan::model {

/// One period's figures of a page.
struct StatusPageMetric {
    std::string period{};
    std::optional<double> uptime{};
    std::optional<std::int64_t> incidents{};

    bool operator==(const StatusPageMetric&) const = default;
};

/// One status page of the account.
struct StatusPage {
    std::string id{};
    std::string name{};
    std::optional<std::string> slug{};
    std::optional<URL> url{};
    std::optional<std::string> description{};
    StatusPageStatus status = StatusPageStatus::unknown;
    std::optional<support::Time> createdAt{};
    std::optional<support::Time> updatedAt{};
    std::optional<std::vector<StatusPageMetric>> metrics{};

    bool operator==(const StatusPage&) const = default;
};

}  // namespace larkspan::model
