#pragma once

#include <optional>
#include <string>

#include "model/json/WireField.h"

namespace larkspan::model {

/// What a page is to become.
struct UpdateStatusPageRequest {
    WIRE_FIELD(std::optional<std::string>, title);
    WIRE_FIELD(std::optional<std::string>, description);

    bool operator==(const UpdateStatusPageRequest&) const = default;
};

}  // namespace larkspan::model
