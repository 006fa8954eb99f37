#pragma once

#include <QObject>
#include <QQmlApplicationEngine>

#include <memory>

#include "bridge/AppearanceBridge.h"
#include "bridge/DashboardBridge.h"
#include "platform/Executor.h"
#include "workspace/Dashboard.h"

class QQuickWindow;

namespace larkspan {

/// The one window with all its screens. Hidden until somebody shows it. Main thread only.
class MainWindow final : public QObject {
    Q_OBJECT

public:
    MainWindow(std::shared_ptr<workspace::Dashboard> dashboard, platform::Executor& main);

    QQuickWindow& window() const { return *window_; }
    bridge::AppearanceBridge& appearance() { return appearance_; }

signals:
    /// The user asked from the window that the program end.
    void quitRequested();

private:
    bridge::AppearanceBridge appearance_;
    bridge::DashboardBridge dashboard_;
    QQmlApplicationEngine engine_;
    QQuickWindow* window_ = nullptr;
};

}  // namespace larkspan
