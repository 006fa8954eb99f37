#pragma once

#include <QObject>
#include <QQmlApplicationEngine>

#include <memory>

#include "bridge/menu/MenuBridge.h"
#include "bridge/screens/ScreenUpdates.h"
#include "bridge/workspace/AboutBridge.h"
#include "bridge/workspace/AppearanceBridge.h"
#include "bridge/workspace/DashboardBridge.h"
#include "bridge/workspace/UpdateBridge.h"
#include "core/UpdaterController.h"
#include "platform/Executor.h"
#include "workspace/AboutKestruneView.h"
#include "workspace/Dashboard.h"

class QQuickWindow;

namespace larkspan {

/// The one window with all its screens. Hidden until somebody shows it. Main thread only.
class MainWindow final : public QObject {
    Q_OBJECT

public:
    /// What the screens show; what is a reference outlives the window.
    struct Content {
        std::shared_ptr<workspace::Dashboard> dashboard;
        std::shared_ptr<core::UpdaterController> updates;
        const workspace::AboutKestruneView& about;
        /// Whether the about box is up: a field of `aboutOwner`.
        support::Published<bool>& showingAbout;
        support::Observable& aboutOwner;
        bridge::MenuBridge& menu;
    };

    MainWindow(Content content, platform::Executor& main);

    QQuickWindow& window() const { return *window_; }
    bridge::AppearanceBridge& appearance() { return appearance_; }

signals:
    /// The user asked from the window that the program end.
    void quitRequested();

private:
    bridge::ScreenUpdates screenUpdates_;
    bridge::AppearanceBridge appearance_;
    bridge::DashboardBridge dashboard_;
    bridge::AboutBridge about_;
    bridge::UpdateBridge updates_;
    QQmlApplicationEngine engine_;
    QQuickWindow* window_ = nullptr;
};

}  // namespace larkspan
