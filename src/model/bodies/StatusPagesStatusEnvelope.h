#pragma once

#include <string>
#include <vector>

#include "model/json/WireField.h"

namespace larkspan::model {

/// A page's status in the status overview; its codes differ from the words of `StatusPageStatus`.
struct OverallStatusDTO {
    WIRE_FIELD(std::string, code);
    WIRE_FIELD(std::string, label);

    bool operator==(const OverallStatusDTO&) const = default;
};

/// One row of the status overview.
struct PageStatusEntry {
    WIRE_FIELD(std::string, id);
    WIRE_FIELD(std::string, name);
    WIRE_FIELD(OverallStatusDTO, status);

    bool operator==(const PageStatusEntry&) const = default;
};

/// The status overview.
struct StatusPagesStatusEnvelope {
    WIRE_FIELD(std::vector<PageStatusEntry>, statusPages);

    bool operator==(const StatusPagesStatusEnvelope&) const = default;
};

}  // namespace larkspan::model
