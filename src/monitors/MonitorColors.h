#pragma once

#include <string_view>

#include "model/records/MonitorStatus.h"
#include "presentation/shapes/Tone.h"

namespace larkspan::monitors {

std::string_view monitorStatusIcon(model::MonitorStatus status);
presentation::Tone monitorStatusColor(model::MonitorStatus status);

/// Of a trend's word in any case of letters. Up is green for whatever goes up, the response time too: the service's
/// word says whether things get better, not which way the number goes.
presentation::Tone trendColor(std::string_view trend);
std::string_view trendIcon(std::string_view trend);

/// Of a region's word in any case of letters; words that nobody knows are gray.
presentation::Tone regionStatusColor(std::string_view status);

/// Of a response time in milliseconds: quick, slow or too slow.
presentation::Tone responseTimeColor(double milliseconds);
/// Of the share of time that a monitor was up, in percent.
presentation::Tone uptimeColor(double percentage);

}  // namespace larkspan::monitors
