#include "Launch.h"

#include <QGuiApplication>
#include <QIcon>

#include <variant>

#include "Application.h"
#include "BuildSettings.h"
#include "StatusCommand.h"
#include "adapters/ActivationToken.h"
#include "adapters/CommandLine.h"
#include "adapters/SingleInstance.h"
#include "qml/Fonts.h"
#include "qml/Renderer.h"

namespace larkspan {

namespace {

int tellStatus(int argc, char** argv, const Launch& launched, bool asJSON)
{
    const QCoreApplication qt(argc, argv);
    const adapters::SessionBus bus;
    return printStatus(bus.connection(), launched.busName, asJSON, [&] {
        adapters::MainExecutor main;
        platform::StatusReport report;
        launched.withService(main, bus, Launch::Prompts::never,
            [&](ServiceAccess service) { report = fetchStatus(main, std::move(service)); });
        return report;
    });
}

int start(int argc, char** argv, const Launch& launched, bool isMinimized)
{
    const QString activationToken = adapters::launchActivationToken();
    chooseRenderer();
    const QGuiApplication qt(argc, argv);
    QGuiApplication::setApplicationDisplayName(launched.displayName);
    QGuiApplication::setDesktopFileName(QStringLiteral("com.kestrune.larkspan"));
    if (!launched.icon.isEmpty()) QGuiApplication::setWindowIcon(QIcon(launched.icon));

    const adapters::SessionBus bus;
    adapters::SingleInstance instance(bus, launched.busName);
    using adapters::SingleInstance;
    const auto raise = isMinimized ? SingleInstance::Raise::no : SingleInstance::Raise::yes;
    if (instance.claim(activationToken, raise) == SingleInstance::Standing::second) return 0;
    lookUpFonts();

    adapters::MainExecutor main;
    int code = 0;
    launched.withService(main, bus, Launch::Prompts::allowed, [&](ServiceAccess service) {
        Application application(main, std::move(service), bus);
        code = application.run(instance, isMinimized);
    });
    return code;
}

}  // namespace

int launch(int argc, char** argv, const Launch& launched)
{
    const auto read = adapters::readArguments(argc, argv, launched.executable, BuildSettings::versionAndBuild);
    if (const auto* const code = std::get_if<int>(&read)) return *code;
    const auto arguments = std::get<adapters::Arguments>(read);
    if (arguments.asksForStatus) return tellStatus(argc, argv, launched, arguments.asJSON);
    return start(argc, argv, launched, arguments.isMinimized);
}

}  // namespace larkspan
