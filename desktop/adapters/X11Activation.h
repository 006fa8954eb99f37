#pragma once

#include <QString>

class QWindow;

namespace larkspan::adapters {

/// What Qt leaves undone when a window of an X11 desktop comes to the front. Main thread only.
struct X11Activation {
    /// Whether the program runs on X11 at all; the others do nothing elsewhere.
    static bool isNeeded();

    /// Has the window manager focus `window` as a deed of the user's. Qt asks with the time of the program's own last
    /// input, which is older than what the user did elsewhere, and is refused.
    static void activate(const QWindow& window);

    /// Tells the desktop that the launch of `activationToken` is over, which ends the busy pointer.
    static void endLaunch(const QWindow& window, const QString& activationToken);
};

}  // namespace larkspan::adapters
