#include "peers/WindowManager.h"

#include <QProcessEnvironment>

#include <stdexcept>

#include "peers/EventLoop.h"
#include "peers/X11Peer.h"

namespace larkspan::peers {

WindowManager::WindowManager()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home_.path());
    for (const auto* const name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) environment.remove(name);
    process_.setProcessEnvironment(environment);
    process_.start("openbox", {"--sm-disable"});
    // It owns the screen before it manages windows, and ignores those that are mapped in between.
    const auto takesCareOfWindows = [] {
        X11Peer peer;
        const auto window = peer.showWindow();
        return turnUntil([&] { return peer.state(window) == X11Peer::State::normal; }, std::chrono::milliseconds(200));
    };
    if (!turnUntil(takesCareOfWindows)) throw std::runtime_error("openbox doesn't start");
}

WindowManager::~WindowManager()
{
    process_.terminate();
    process_.waitForFinished();
}

}  // namespace larkspan::peers
