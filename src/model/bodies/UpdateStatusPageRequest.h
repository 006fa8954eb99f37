#pragma once

#include <optional>
#include <string>

#include "model/json/WireField.h"

namespace larkspan::model {

/// The body of a request that changes a page.
struct UpdateStatusPageRequest {
    WIRE_FIELD(std::optional<std::string>, title);
    WIRE_FIELD(std::optional<std::string>, description);

    bool operator==(const UpdateStatusPageRequest&) const = default;
};

}  // namespace larkspan::model
