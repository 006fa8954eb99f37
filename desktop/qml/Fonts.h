#pragma once

namespace larkspan {

/// Looks up the machine's fonts on another thread, so that they are known before the first text is laid out. Call it
/// after the application object is made.
void lookUpFonts();

}  // namespace larkspan
