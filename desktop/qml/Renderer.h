#pragma once

namespace larkspan {

/// Makes Qt Quick draw all windows in software instead of with a graphics driver, unless the environment selects
/// another renderer (`QT_QUICK_BACKEND`, `QSG_RHI_BACKEND`). Call it before the first window is made.
void chooseRenderer();

}  // namespace larkspan
