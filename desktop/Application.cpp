#include "Application.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <utility>

#include "BuildSettings.h"
#include "adapters/ImmediateExit.h"
#include "adapters/StatusService.h"
#include "adapters/TerminationSignals.h"
#include "qml/MainWindow.h"
#include "workspace/DashboardView.h"
#include "workspace/StatusReports.h"

namespace larkspan {

namespace {

workspace::AboutKestruneView::Bundle bundle()
{
    return {.shortVersion = BuildSettings::version,
        .buildNumber = BuildSettings::buildNumber,
        .websiteAddress = BuildSettings::websiteAddress,
        .communityAddress = BuildSettings::communityAddress,
        .organisationAddress = BuildSettings::organisationAddress};
}

}  // namespace

Application::Application(adapters::MainExecutor& main, ServiceAccess service, const adapters::SessionBus& bus)
    : main_(main)
    , service_(std::move(service))
    , bus_(bus)
    , appearance_(bus)
    , notifications_(bus)
    , updater_(QDBusConnection::systemBus())
    , tray_(bus, appearance_)
    , menu_([this] { app_->showingAbout = true; })
    , statusItems_({tray_, menu_})
    , about_(bundle(), links_)
    , api_({service_.client, service_.transport, service_.credentials, clock_}, service_.host)
    , keys_(service_.client, service_.credentials)
    , updates_(std::make_shared<core::UpdaterController>(updater_))
    , app_(std::make_unique<core::LarkspanApp>(core::AppStateManager::Ports{main_, timers_, clock_, notifications_,
          networkMonitor_, statusItems_, updates_, windows_, service_.credentials, api_}))
{
    auto dashboard = std::make_shared<workspace::DashboardView>(workspace::DashboardView::Ports{
        main_, timers_, clock_, service_.credentials, keys_, app_->appState(), locale_, links_, api_});
    dashboard->demoKey = service_.demoKey;
    app_->appState()->guardQuitting(dashboard);
    window_ = std::make_unique<MainWindow>(
        MainWindow::Content{std::move(dashboard), updates_, about_, app_->showingAbout, *app_, menu_}, main_);
    windows_.add(window_->window());

    using adapters::Appearance;
    for (const auto changed :
        {&Appearance::isDarkChanged, &Appearance::isHighContrastChanged, &Appearance::reducesMotionChanged}) {
        connect(&appearance_, changed, this, &Application::showAppearance);
    }
    showAppearance();
    connect(&tray_, &adapters::StatusNotifierItem::activationTokenProvided, this,
        [this](const QString& token) { windows_.setActivationToken(token); });
    connect(window_.get(), &MainWindow::quitRequested, this, [this] { app_->quitApp(); });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) app_->windowLifecycleDelegate().applicationDidBecomeActive();
    });
}

Application::~Application()
{
    // Screens and timers first, so that nothing new starts. Tasks that still wait for an answer unwind on both
    // executors once the transport is gone, and must have done so while the executors and the client exist.
    window_.reset();
    app_.reset();
    service_.stop();
    main_.drop();
}

int Application::run(adapters::SingleInstance& instance, bool isMinimized)
{
    const adapters::TerminationSignals termination;
    connect(&termination, &adapters::TerminationSignals::requested, this, &Application::quit);
    connect(&instance, &adapters::SingleInstance::replaced, this, &Application::quit);
    connect(&instance, &adapters::SingleInstance::activated, this, &Application::reopen);
    const adapters::StatusService status(
        bus_, instance.name(), [this] { return workspace::statusReport(*app_->appState()); });
    appearance_.catchUp();
    auto& rules = app_->windowLifecycleDelegate();
    if (isMinimized) {
        rules.applicationDidFinishLaunchingMinimized(timers_);
    } else {
        window_->window().show();
        rules.applicationDidFinishLaunching();
    }
    const adapters::ImmediateExit whileTheLoopRuns;
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
