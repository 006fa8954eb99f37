#pragma once

#include <string>

namespace larkspan::platform {

/// The account's status for a terminal, a script or a desktop's bar.
struct StatusReport {
    /// As monitoring plugins end: 0 operational, 1 degraded or maintenance, 2 down, 3 not known for certain.
    int exitCode = 3;
    /// The headline, and below it what it is made of; each line is ended.
    std::string text = {};
    /// The same with counts and pages, as one JSON object in one line, which is ended.
    std::string json = {};
    /// Why the status is not known for certain; empty if it is.
    std::string problem = {};

    bool operator==(const StatusReport&) const = default;
};

}  // namespace larkspan::platform
