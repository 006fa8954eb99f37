#pragma once

#include "model/json/WireField.h"

namespace larkspan::model {

/// The envelope of most results.
template <typename Payload>
struct DataResponse {
    WIRE_FIELD(Payload, data);
};

}  // namespace larkspan::model
