#pragma once

#include <vector>

#include "model/records/Maintenance.h"
#include "platform/LocaleText.h"
#include "presentation/shapes/TimelineRow.h"

namespace larkspan::maintenances {

/// What was planned and what came of it.
std::vector<presentation::TimelineRow> maintenanceTimeline(
    const model::Maintenance& maintenance, const platform::LocaleText& locale);

/// When the record was made, and changed since. It stands apart; without a creation there is nothing to part, and the
/// change ends the rows above.
std::vector<presentation::TimelineRow> recordTimeline(
    const model::Maintenance& maintenance, const platform::LocaleText& locale);

}  // namespace larkspan::maintenances
