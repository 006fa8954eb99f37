#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickWindow>

#include <memory>

#include "bridge/menu/StatusMenuBridge.h"
#include "bridge/workspace/AboutKestruneBridge.h"
#include "bridge/workspace/AppearanceBridge.h"
#include "bridge/workspace/DashboardBridge.h"
#include "bridge/workspace/UpdateReportBridge.h"
#include "core/UpdaterController.h"
#include "platform/Executor.h"
#include "support/ScreenUpdates.h"
#include "workspace/AboutKestruneView.h"
#include "workspace/DashboardView.h"

namespace larkspan {

/// The window with all its screens. Hidden at first. Main thread only.
class MainWindow final : public QObject {
    Q_OBJECT

public:
    /// The content of the screens; references must outlive the window.
    struct Content {
        std::shared_ptr<workspace::DashboardView> dashboard;
        std::shared_ptr<core::UpdaterController> updates;
        const workspace::AboutKestruneView& about;
        /// Whether the about box is shown: a field of `aboutOwner`.
        support::Published<bool>& showingAbout;
        support::Observable& aboutOwner;
        bridge::StatusMenuBridge& menu;
    };

    MainWindow(Content content, platform::Executor& main);

    QQuickWindow& window() const { return *window_; }
    bridge::AppearanceBridge& appearance() { return appearance_; }

signals:
    /// Emitted when the user quits the program in the window.
    void quitRequested();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    support::ScreenUpdates screenUpdates_;
    bridge::AppearanceBridge appearance_;
    bridge::DashboardBridge dashboard_;
    bridge::AboutKestruneBridge about_;
    bridge::UpdateReportBridge updates_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
};

}  // namespace larkspan
