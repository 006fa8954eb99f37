#pragma once

#include <vector>

#include "model/records/Maintenance.h"
#include "platform/LocaleText.h"
#include "presentation/shapes/TimelineRow.h"

namespace larkspan::maintenances {

/// The planned and the actual times.
std::vector<presentation::TimelineRow> maintenanceTimeline(
    const model::Maintenance& maintenance, const platform::LocaleText& locale);

/// The times of the record's creation and last change, shown separately. Empty without a creation; the change is then
/// the last of the rows above.
std::vector<presentation::TimelineRow> recordTimeline(
    const model::Maintenance& maintenance, const platform::LocaleText& locale);

}  // namespace larkspan::maintenances
