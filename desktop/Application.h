#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <string>

#include "adapters/Appearance.h"
#include "adapters/DesktopLinkOpener.h"
#include "adapters/FreedesktopNotificationCenter.h"
#include "adapters/MainExecutor.h"
#include "adapters/PackageKitUpdater.h"
#include "adapters/QtLocaleText.h"
#include "adapters/QtNetworkPathMonitor.h"
#include "adapters/QtTimers.h"
#include "adapters/QtWindowSystem.h"
#include "adapters/SingleInstance.h"
#include "adapters/StatusItems.h"
#include "adapters/SystemClock.h"
#include "adapters/tray/StatusNotifierItem.h"
#include "api/APIKeyStore.h"
#include "api/KestruneAPI.h"
#include "bridge/menu/MenuBridge.h"
#include "core/LarkspanApp.h"
#include "core/UpdaterController.h"
#include "workspace/AboutKestruneView.h"

namespace larkspan {

class MainWindow;

/// The road to the service, which the program and its demo take differently.
struct ServiceAccess {
    std::string host;
    platform::Executor& client;
    platform::HttpTransport& transport;
    platform::CredentialStore& credentials;
    /// The key that works, where the settings are to tell it; empty where it is the user's own.
    std::string demoKey = {};
    /// Drops what is under way and ends the client's executor. Called once, at the end.
    std::function<void()> stop;
};

/// The program, put together over a `QGuiApplication` and taken apart again. Main thread only.
class Application final : public QObject {
public:
    /// `main` is the executor of this thread, and nothing else runs on it once the application has gone.
    Application(adapters::MainExecutor& main, ServiceAccess service);
    ~Application() override;

    /// Shows the window and runs until its user, a signal or a start that has taken over `instance` asks the program to
    /// end.
    int run(adapters::SingleInstance& instance);

private:
    /// The user started the program again: its window comes forward.
    void reopen(const QString& activationToken);
    /// Ends the program, also in mid-request.
    void quit() { app_->terminate(); }
    void showAppearance();

    adapters::MainExecutor& main_;
    ServiceAccess service_;
    adapters::Appearance appearance_;
    adapters::QtTimers timers_;
    adapters::SystemClock clock_;
    adapters::QtWindowSystem windows_;
    adapters::FreedesktopNotificationCenter notifications_;
    adapters::QtNetworkPathMonitor networkMonitor_;
    adapters::DesktopLinkOpener links_;
    adapters::QtLocaleText locale_;
    adapters::PackageKitUpdater updater_;
    adapters::StatusNotifierItem tray_;
    bridge::MenuBridge menu_;
    adapters::StatusItems statusItems_;
    workspace::AboutKestruneView about_;
    api::KestruneAPI api_;
    api::APIKeyStore keys_;
    std::shared_ptr<core::UpdaterController> updates_;
    std::unique_ptr<core::LarkspanApp> app_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace larkspan
