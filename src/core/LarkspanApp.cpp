#include "core/LarkspanApp.h"

#include <utility>

namespace larkspan::core {

LarkspanApp::LarkspanApp(const AppStateManager::Ports& ports)
    : windows_(ports.windows)
    , appState_(AppStateManager::make(ports))
    , windowLifecycleDelegate_(
          std::make_shared<MainWindowLifecycleDelegate>(ports.windows, ports.statusItem, ports.main))
{
    support::start(ports.main, startUp(appState_, windowLifecycleDelegate_));
}

support::Task<void> LarkspanApp::startUp(
    std::shared_ptr<AppStateManager> appState, std::weak_ptr<MainWindowLifecycleDelegate> windowRules)
{
    appState->setupStatusItem(std::move(windowRules));
    appState->startPollTimer();
    appState->refreshNow();
    co_return;
}

}  // namespace larkspan::core
