#pragma once

#include <string>

#include "model/records/Incident.h"
#include "model/records/Maintenance.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::workspace {

/// A current incident or maintenance of a page.
struct ActivityRow {
    std::string id{};
    std::string symbol{};
    presentation::Tone tone = presentation::Tone::secondary;
    std::string title{};
    std::string caption{};

    static ActivityRow of(const model::Incident& incident);
    static ActivityRow of(const model::Maintenance& maintenance);

    bool operator==(const ActivityRow&) const = default;
};

}  // namespace larkspan::workspace
