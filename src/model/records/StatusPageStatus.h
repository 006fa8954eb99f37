#pragma once

#include <string_view>

#include "model/json/RawTexts.h"

namespace larkspan::model {

enum class StatusPageStatus { operational, degraded, down, maintenance, unknown };

template <>
struct RawTexts<StatusPageStatus> {
    static constexpr RawText<StatusPageStatus> table[] = {
        {"operational", StatusPageStatus::operational},
        {"degraded", StatusPageStatus::degraded},
        {"down", StatusPageStatus::down},
        {"maintenance", StatusPageStatus::maintenance},
        {"unknown", StatusPageStatus::unknown},
    };
};

/// The label of the status: "Operational", "Degraded", "Down", "Maintenance", "Unknown".
std::string_view displayName(StatusPageStatus status);

}  // namespace larkspan::model
