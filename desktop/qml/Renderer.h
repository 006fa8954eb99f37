#pragma once

namespace larkspan {

/// Lets all windows be drawn by Qt Quick itself instead of a graphics driver, unless the environment asks for another
/// way (`QT_QUICK_BACKEND`, `QSG_RHI_BACKEND`). Called before the first window.
void chooseRenderer();

}  // namespace larkspan
