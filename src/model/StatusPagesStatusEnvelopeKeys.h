#pragma once

#include "model/KeyTable.h"
#include "model/StatusPagesStatusEnvelope.h"

namespace larkspan::model {

template <>
struct KeyTable<OverallStatusDTO> {
    static constexpr auto rows = std::tuple{
        required("code", &OverallStatusDTO::code),
        required("label", &OverallStatusDTO::label),
    };
};

template <>
struct KeyTable<PageStatusEntry> {
    static constexpr auto rows = std::tuple{
        required("id", &PageStatusEntry::id),
        required("name", &PageStatusEntry::name),
        required("status", &PageStatusEntry::status),
    };
};

template <>
struct KeyTable<StatusPagesStatusEnvelope> {
    static constexpr auto rows = std::tuple{
        required("statusPages", &StatusPagesStatusEnvelope::statusPages),
    };
};

}  // namespace larkspan::model
