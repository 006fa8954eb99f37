#pragma once

namespace larkspan::model {

/// An answer whose content does not matter: any JSON object.
struct EmptyResponse {
    bool operator==(const EmptyResponse&) const = default;
};

}  // namespace larkspan::model
