#pragma once

namespace larkspan::model {

/// An answer whose content is of no interest: any JSON object.
struct EmptyResponse {
    bool operator==(const EmptyResponse&) const = default;
};

}  // namespace larkspan::model
