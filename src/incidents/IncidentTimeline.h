#pragma once

#include <string>
#include <vector>

#include "model/records/Incident.h"
#include "platform/LocaleText.h"
#include "presentation/shapes/TimelineRow.h"

namespace larkspan::incidents {

std::vector<presentation::TimelineRow> incidentTimeline(
    const model::Incident& incident, const platform::LocaleText& locale);

/// The duration of the incident, up to `now` if it is not resolved.
std::string incidentDuration(const model::Incident& incident, support::Time now);

}  // namespace larkspan::incidents
