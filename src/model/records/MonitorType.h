#pragma once

#include "model/json/RawTexts.h"

namespace larkspan::model {

/// The kind of thing that a monitor checks.
enum class MonitorType { http, tcp, dns, smtp, custom, api, site };

template <>
struct RawTexts<MonitorType> {
    static constexpr RawText<MonitorType> table[] = {
        {"http", MonitorType::http},
        {"tcp", MonitorType::tcp},
        {"dns", MonitorType::dns},
        {"smtp", MonitorType::smtp},
        {"custom", MonitorType::custom},
        {"api", MonitorType::api},
        {"site", MonitorType::site},
    };
};

}  // namespace larkspan::model
