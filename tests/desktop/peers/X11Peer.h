#pragma once

#include <QString>
#include <QStringList>

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>

namespace larkspan::peers {

/// Another client of the X server, which sees how the window manager treats a window, and acts as a panel does.
class X11Peer {
public:
    enum class State : std::uint32_t { normal = 1, iconic = 3 };

    X11Peer();
    ~X11Peer();
    X11Peer(const X11Peer&) = delete;
    X11Peer& operator=(const X11Peer&) = delete;

    bool hasWindowManager() const;
    /// Empty while the window manager does not manage the window.
    std::optional<State> state(xcb_window_t window) const;
    xcb_window_t activeWindow() const;

    /// Presses the window's close button.
    void pressClose(xcb_window_t window) const;

    /// Shows another window, which the window manager focuses.
    xcb_window_t showWindow();

    /// The messages by which programs have announced the end of their launch so far.
    QStringList endedLaunches();

private:
    xcb_atom_t atom(const char* name) const;
    std::optional<std::uint32_t> number(xcb_window_t window, const char* property) const;

    xcb_connection_t* connection_;
    xcb_window_t root_;
    QByteArray launchText_;
    QStringList endedLaunches_;
};

}  // namespace larkspan::peers
