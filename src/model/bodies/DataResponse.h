#pragma once

#include "model/json/WireField.h"

namespace larkspan::model {

/// The envelope that most results arrive in.
template <typename Payload>
struct DataResponse {
    WIRE_FIELD(Payload, data);
};

}  // namespace larkspan::model
