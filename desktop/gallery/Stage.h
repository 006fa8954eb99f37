#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "adapters/MainExecutor.h"
#include "adapters/QtLocaleText.h"
#include "adapters/QtTimers.h"
#include "adapters/SystemClock.h"
#include "api/APIKeyStore.h"
#include "api/KestruneAPI.h"
#include "bridge/menu/StatusMenuBridge.h"
#include "core/AppStateManager.h"
#include "qml/MainWindow.h"
#include "workspace/AboutKestruneView.h"
#include "workspace/DashboardView.h"

namespace larkspan::gallery {

/// Ports without a system: the scenes set every state themselves.
struct NoOutside final : platform::HttpTransport,
                         platform::CredentialStore,
                         platform::NotificationCenter,
                         platform::NetworkPathMonitor,
                         platform::Updater,
                         platform::LinkOpener,
                         platform::WindowSystem {
    void send(platform::HttpRequest, std::stop_token, support::UniqueFunction<void(Result)>) override {}
    std::optional<std::string> find(const platform::CredentialItem&) override { return storedKey; }
    bool add(const platform::CredentialItem&, const std::string&) override { return false; }
    void remove(const platform::CredentialItem&) override {}
    void allowPromptAgain() override {}
    void requestAuthorization() override {}
    void add(const platform::NotificationRequest&) override {}
    void start(std::function<void(bool)>) override {}
    void check(support::UniqueFunction<void(platform::UpdateCheck)>) override {}
    void open(const std::string&) override {}
    std::vector<std::shared_ptr<platform::Window>> windows() override { return {}; }
    void activateIgnoringOtherApps() override {}
    void terminate() override {}

    std::optional<std::string> storedKey;
};

/// The time of every stage's clock.
inline support::Time now()
{
    return adapters::SystemClock().now();
}

/// Everything that the window shows, without a system behind it.
class Stage : private support::Observable {
public:
    explicit Stage(adapters::MainExecutor& main);

    core::AppStateManager& state() { return *state_; }
    workspace::DashboardView& dashboard() { return *dashboard_; }
    core::UpdaterController& updates() { return *updates_; }
    void storeKey() { outside_.storedKey = "stored"; }
    void showAbout() { showingAbout_ = true; }

    MainWindow::Content content() { return {dashboard_, updates_, about_, showingAbout_, *this, menu_}; }

private:
    adapters::MainExecutor& main_;
    adapters::QtTimers timers_;
    adapters::SystemClock clock_;
    NoOutside outside_;
    adapters::QtLocaleText locale_;
    support::Published<bool> showingAbout_{*this, false};
    bridge::StatusMenuBridge menu_{[this] { showAbout(); }};
    api::KestruneAPI api_{{main_, outside_, outside_, clock_}, "kestrune.example"};
    api::APIKeyStore keys_{main_, outside_};
    workspace::AboutKestruneView about_{workspace::AboutKestruneView::Bundle(), outside_};
    std::shared_ptr<core::UpdaterController> updates_ = std::make_shared<core::UpdaterController>(outside_);
    std::shared_ptr<core::AppStateManager> state_;
    std::shared_ptr<workspace::DashboardView> dashboard_;
};

}  // namespace larkspan::gallery
