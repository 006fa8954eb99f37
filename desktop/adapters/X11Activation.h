#pragma once

#include <QString>

class QWindow;

namespace larkspan::adapters {

/// Completes what Qt does when a window of an X11 desktop is brought to the front. Main thread only.
struct X11Activation {
    /// Whether the program runs on X11; if not, the other functions do nothing.
    static bool isNeeded();

    /// Asks the window manager to focus `window` as an action of the user. Qt asks with the time of the program's own
    /// last input, which is older than what the user did elsewhere, and is refused.
    static void activate(const QWindow& window);

    /// Tells the desktop that the launch of `activationToken` is over, which ends the busy pointer.
    static void endLaunch(const QWindow& window, const QString& activationToken);
};

}  // namespace larkspan::adapters
