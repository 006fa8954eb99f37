#pragma once

#include <string>

#include "model/records/StatusPage.h"
#include "presentation/shapes/Pill.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::workspace {

/// One page in the dashboard's list.
struct StatusPageRow {
    std::string id{};
    std::string title{};
    std::string symbol{};
    presentation::Tone tone = presentation::Tone::gray;
    presentation::Pill status{};

    static StatusPageRow of(const model::StatusPage& page);

    bool operator==(const StatusPageRow&) const = default;
};

}  // namespace larkspan::workspace
