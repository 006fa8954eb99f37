#pragma once

#include <memory>

#include "core/AppStateManager.h"
#include "fakes/FakeNetworkPathMonitor.h"
#include "fakes/FakeNotificationCenter.h"
#include "fakes/FakeStatusItem.h"
#include "fakes/FakeUpdater.h"
#include "fakes/FakeWindowSystem.h"
#include "fakes/ManualTimers.h"

namespace larkspan::fakes {

/// What the application's state has of the desktop.
struct FakeDesktop {
    /// The ports of a state; `item` is the panel's in place of the fake.
    core::AppStateManager::Ports ports(platform::Executor& main, const platform::Clock& clock,
        platform::CredentialStore& credentials, api::KestruneAPI& api, platform::StatusItem* item = nullptr)
    {
        return {
            main, timers, clock, notifications, network, item ? *item : statusItem, updates, windows, credentials, api};
    }

    ManualTimers timers;
    FakeNotificationCenter notifications;
    FakeNetworkPathMonitor network;
    FakeStatusItem statusItem;
    FakeUpdater updater;
    std::shared_ptr<core::UpdaterController> updates = std::make_shared<core::UpdaterController>(updater);
    FakeWindowSystem windows;
};

}  // namespace larkspan::fakes
