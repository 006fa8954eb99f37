#pragma once

#include "model/KeyTable.h"

namespace larkspan::model {

/// The envelope that most results arrive in.
template <typename Payload>
struct DataResponse {
    Payload data{};
};

template <typename Payload>
struct KeyTable<DataResponse<Payload>> {
    static constexpr auto rows = std::tuple{
        required("data", &DataResponse<Payload>::data),
    };
};

}  // namespace larkspan::model
