#pragma once

#include <string_view>

namespace larkspan::monitors {

/// The actions on a monitor, from its row or from its own screen.
enum class MonitorAction { pauseResume, checkNow };

/// The ids of their buttons.
inline constexpr std::string_view pauseResumeButton = "pauseResume";
inline constexpr std::string_view checkNowButton = "checkNow";

}  // namespace larkspan::monitors
