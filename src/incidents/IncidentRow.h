#pragma once

#include <optional>
#include <string>

#include "model/records/Incident.h"
#include "platform/LocaleText.h"
#include "presentation/shapes/Pill.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::incidents {

/// One incident in the list of its page.
struct IncidentRow {
    std::string id{};
    std::string title{};
    /// The colour of the dot.
    presentation::Tone tone = presentation::Tone::gray;
    std::optional<presentation::Pill> severity{};
    std::string date{};
    presentation::Pill status{};

    static IncidentRow of(const model::Incident& incident, const platform::LocaleText& locale);

    bool operator==(const IncidentRow&) const = default;
};

}  // namespace larkspan::incidents
