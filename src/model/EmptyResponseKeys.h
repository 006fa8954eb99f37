#pragma once

#include "model/EmptyResponse.h"
#include "model/KeyTable.h"

namespace larkspan::model {

template <>
struct KeyTable<EmptyResponse> {
    static constexpr auto rows = std::tuple{};
};

}  // namespace larkspan::model
