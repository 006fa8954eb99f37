#pragma once

#include <string>
#include <vector>

namespace larkspan::model {

/// A page's status as the status overview reports it; its codes are not the words of `StatusPageStatus`.
struct OverallStatusDTO {
    std::string code{};
    std::string label{};

    bool operator==(const OverallStatusDTO&) const = default;
};

/// One row of the status overview.
struct PageStatusEntry {
    std::string id{};
    std::string name{};
    OverallStatusDTO status{};

    bool operator==(const PageStatusEntry&) const = default;
};

/// The status overview.
struct StatusPagesStatusEnvelope {
    std::vector<PageStatusEntry> statusPages{};

    bool operator==(const StatusPagesStatusEnvelope&) const = default;
};

}  // namespace larkspan::model
