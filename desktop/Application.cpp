#include "Application.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <utility>

#include "qml/MainWindow.h"
#include "workspace/Dashboard.h"

namespace larkspan {

Application::Application(adapters::MainExecutor& main, ServiceAccess service)
    : main_(main)
    , service_(std::move(service))
    , appearance_(QDBusConnection::sessionBus())
    , notifications_(QDBusConnection::sessionBus())
    , api_({service_.client, service_.transport, service_.credentials, clock_}, service_.host)
    , app_(std::make_unique<core::LarkspanApp>(
          core::AppStateManager::Ports{main_, timers_, clock_, notifications_, networkMonitor_, api_}, windows_))
{
    auto dashboard = std::make_shared<workspace::Dashboard>(
        workspace::Dashboard::Ports{timers_, clock_, service_.credentials, app_->appState()});
    window_ = std::make_unique<MainWindow>(std::move(dashboard), main_);
    windows_.add(window_->window());

    using adapters::Appearance;
    for (const auto changed :
        {&Appearance::isDarkChanged, &Appearance::isHighContrastChanged, &Appearance::reducesMotionChanged}) {
        connect(&appearance_, changed, this, &Application::showAppearance);
    }
    showAppearance();
    connect(window_.get(), &MainWindow::quitRequested, this, &Application::quit);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) app_->windowLifecycleDelegate().applicationDidBecomeActive();
    });
}

Application::~Application()
{
    // Screens and timers first, so that nothing new begins. What still waits for an answer unwinds once the road to the
    // service is gone, by way of both executors, and must have done so while they and the client exist.
    window_.reset();
    app_.reset();
    service_.stop();
    main_.drop();
}

int Application::run()
{
    appearance_.catchUp();
    window_->window().show();
    app_->windowLifecycleDelegate().applicationDidFinishLaunching();
    return QGuiApplication::exec();
}

void Application::showAppearance()
{
    auto& shown = window_->appearance();
    shown.setProperty("isDark", appearance_.isDark());
    shown.setProperty("hasHighContrast", appearance_.isHighContrast());
    shown.setProperty("reducesMotion", appearance_.reducesMotion());
}

void Application::reopen(const QString& activationToken)
{
    windows_.setActivationToken(activationToken);
    app_->windowLifecycleDelegate().applicationShouldHandleReopen(window_->window().isVisible());
}

}  // namespace larkspan
