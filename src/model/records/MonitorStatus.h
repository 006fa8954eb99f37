#pragma once

#include "model/json/RawTexts.h"

namespace larkspan::model {

enum class MonitorStatus { operational, degraded, down, paused, unknown };

template <>
struct RawTexts<MonitorStatus> {
    static constexpr RawText<MonitorStatus> table[] = {
        {"operational", MonitorStatus::operational},
        {"degraded", MonitorStatus::degraded},
        {"down", MonitorStatus::down},
        {"paused", MonitorStatus::paused},
        {"unknown", MonitorStatus::unknown},
    };
};

}  // namespace larkspan::model
