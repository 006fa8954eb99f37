#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "support/Time.h"

namespace larkspan::simulator {

/// The state of a page; each resource of the service has its own words for it.
enum class PageHealth { operational, degraded, majorOutage, maintenance };

struct PageMetric {
    std::string period;
    std::optional<double> uptime;
    std::optional<std::int64_t> incidents;
};

/// A status page of the account. `status` and `overview` are sent as they are, so that an account can be put into
/// states that the service should never reach.
struct StatusPage {
    struct Overview {
        std::string code;
        std::string label;
    };

    /// Sets both words to those of the service for a page in this state.
    void setHealth(PageHealth health);

    std::string id;
    std::string name;
    std::optional<std::string> slug;
    std::optional<std::string> url;
    std::optional<std::string> description;
    std::optional<std::string> status;
    std::optional<Overview> overview;
    std::optional<support::Time> createdAt;
    std::optional<support::Time> updatedAt;
    std::optional<std::vector<PageMetric>> metrics;
    std::int64_t viewsOfMonth = 0;
    std::int64_t subscribers = 0;
};

}  // namespace larkspan::simulator
