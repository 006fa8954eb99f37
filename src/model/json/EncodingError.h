#pragma once

#include "support/LocalizedError.h"

namespace larkspan::model {

/// A request that cannot be written as JSON, because a text in it is not valid UTF-8.
class EncodingError : public support::LocalizedError {
public:
    using LocalizedError::LocalizedError;
};

}  // namespace larkspan::model
