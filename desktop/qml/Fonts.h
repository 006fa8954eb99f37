#pragma once

namespace larkspan {

/// Has the machine's fonts looked up on a thread of its own, which is ready before the first text is laid out. Called
/// once the application is there.
void lookUpFonts();

}  // namespace larkspan
