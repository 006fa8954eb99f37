#pragma once

#include <QObject>
#include <QString>

#include <memory>

#include "ServiceAccess.h"
#include "adapters/Appearance.h"
#include "adapters/DesktopLinkOpener.h"
#include "adapters/FreedesktopNotificationCenter.h"
#include "adapters/MainExecutor.h"
#include "adapters/PackageKitUpdater.h"
#include "adapters/QtLocaleText.h"
#include "adapters/QtNetworkPathMonitor.h"
#include "adapters/QtTimers.h"
#include "adapters/QtWindowSystem.h"
#include "adapters/SessionBus.h"
#include "adapters/SingleInstance.h"
#include "adapters/StatusItems.h"
#include "adapters/SystemClock.h"
#include "adapters/tray/StatusNotifierItem.h"
#include "api/APIKeyStore.h"
#include "api/KestruneAPI.h"
#include "bridge/menu/StatusMenuBridge.h"
#include "core/LarkspanApp.h"
#include "core/UpdaterController.h"
#include "workspace/AboutKestruneView.h"

namespace larkspan {

class MainWindow;

/// The program on top of a `QGuiApplication`: constructs its parts and destroys them in order. Main thread only.
class Application final : public QObject {
public:
    /// `main` is the executor of this thread; nothing else may run on it once the application is destroyed. `bus` must
    /// outlive the application.
    Application(adapters::MainExecutor& main, ServiceAccess service, const adapters::SessionBus& bus);
    ~Application() override;

    /// Runs until the user, a signal or another process that has taken over `instance` ends the program. Shows the
    /// window, or with `isMinimized` only the panel's item if there is a panel.
    int run(adapters::SingleInstance& instance, bool isMinimized);

private:
    /// Brings the window to the front because the user started the program again.
    void reopen(const QString& activationToken);
    /// Ends the program, even during a request.
    void quit() { app_->terminate(); }
    void showAppearance();

    adapters::MainExecutor& main_;
    ServiceAccess service_;
    const adapters::SessionBus& bus_;
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
    bridge::StatusMenuBridge menu_;
    adapters::StatusItems statusItems_;
    workspace::AboutKestruneView about_;
    api::KestruneAPI api_;
    api::APIKeyStore keys_;
    std::shared_ptr<core::UpdaterController> updates_;
    std::unique_ptr<core::LarkspanApp> app_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace larkspan
