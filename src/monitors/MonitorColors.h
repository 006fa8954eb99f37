#pragma once

#include <string_view>

#include "model/records/MonitorStatus.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::monitors {

std::string_view monitorStatusIcon(model::MonitorStatus status);
presentation::Tone monitorStatusColor(model::MonitorStatus status);

/// The colour of a trend's word, ignoring the case of letters. Up is always green, even for the response time: the
/// service's word says whether things improve, not whether the number grows.
presentation::Tone trendColor(std::string_view trend);
std::string_view trendIcon(std::string_view trend);

/// The colour of a region's word, ignoring the case of letters; unknown words are gray.
presentation::Tone regionStatusColor(std::string_view status);

/// The colour of a response time in milliseconds: fast, slow or too slow.
presentation::Tone responseTimeColor(double milliseconds);
/// The colour of an uptime in percent.
presentation::Tone uptimeColor(double percentage);

}  // namespace larkspan::monitors
