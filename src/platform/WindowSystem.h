#pragma once

#include <memory>
#include <vector>

namespace larkspan::platform {

/// What closing a window asks, and what came of minimising it; without one a window closes.
class WindowDelegate {
public:
    virtual ~WindowDelegate() = default;

    /// Whether the window may close now.
    virtual bool windowShouldClose() = 0;

    /// The window was to be minimised, and this desktop minimises none: it stands where it stood.
    virtual void windowDidNotMiniaturize() = 0;
};

/// A top-level window of the program.
class Window {
public:
    virtual ~Window() = default;

    virtual bool isVisible() const = 0;
    virtual bool canBecomeKeyWindow() const = 0;
    virtual void setDelegate(std::weak_ptr<WindowDelegate> delegate) = 0;
    virtual void miniaturize() = 0;
    /// Takes the window off the screen and out of the desktop's lists, until it is brought forward.
    virtual void hide() = 0;
    virtual void deminiaturize() = 0;
    virtual void makeKeyAndOrderFront() = 0;
};

/// The program among the desktop's programs. Main thread only.
class WindowSystem {
public:
    virtual ~WindowSystem() = default;

    /// The program's windows, in the order of their making.
    virtual std::vector<std::shared_ptr<Window>> windows() = 0;
    virtual void activateIgnoringOtherApps() = 0;
    virtual void terminate() = 0;
};

}  // namespace larkspan::platform
