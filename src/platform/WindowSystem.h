#pragma once

#include <memory>
#include <vector>

namespace larkspan::platform {

/// Decides whether a window closes, and is told if it was not minimised. A window without a delegate closes.
class WindowDelegate {
public:
    virtual ~WindowDelegate() = default;

    /// Whether the window may close now.
    virtual bool windowShouldClose() = 0;

    /// Called if the window could not be minimised because this desktop minimises none; the window has not changed.
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
    /// Removes the window from the screen and from the desktop's lists until it is brought to the front.
    virtual void hide() = 0;
    virtual void deminiaturize() = 0;
    virtual void makeKeyAndOrderFront() = 0;
};

/// The program and its windows on the desktop. Main thread only.
class WindowSystem {
public:
    virtual ~WindowSystem() = default;

    /// The program's windows in order of creation.
    virtual std::vector<std::shared_ptr<Window>> windows() = 0;
    virtual void activateIgnoringOtherApps() = 0;
    virtual void terminate() = 0;
};

}  // namespace larkspan::platform
