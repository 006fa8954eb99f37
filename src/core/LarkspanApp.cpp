#include "core/LarkspanApp.h"

#include <utility>

namespace larkspan::core {

LarkspanApp::LarkspanApp(const AppStateManager::Ports& ports, platform::WindowSystem& windows)
    : windows_(windows)
    , appState_(AppStateManager::make(ports))
    , windowLifecycleDelegate_(std::make_shared<MainWindowLifecycleDelegate>(windows, ports.main))
{
    support::start(ports.main, startUp(appState_));
}

support::Task<void> LarkspanApp::startUp(std::shared_ptr<AppStateManager> appState)
{
    appState->startPollTimer();
    appState->refreshNow();
    co_return;
}

}  // namespace larkspan::core
