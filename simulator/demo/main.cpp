#include <QGuiApplication>
#include <QIcon>

#include <chrono>
#include <variant>

#include "Application.h"
#include "BuildSettings.h"
#include "StatusCommand.h"
#include "adapters/ActivationToken.h"
#include "adapters/CommandLine.h"
#include "adapters/MainExecutor.h"
#include "adapters/SessionBus.h"
#include "adapters/SingleInstance.h"
#include "adapters/SystemClock.h"
#include "api/KeychainHelper.h"
#include "demo/DemoAccount.h"
#include "qml/Fonts.h"
#include "qml/Renderer.h"
#include "support/FatalError.h"

namespace larkspan {

namespace {

/// The service inside the process.
class DemoService {
public:
    ServiceAccess access()
    {
        return {
            .host = "demo.kestrune.example",
            .client = account_.executor(),
            .transport = account_.transport(),
            .credentials = account_.credentialStore(),
            .demoKey = simulator::DemoAccount::key,
            .stop = [this] { account_.stop(); },
        };
    }

private:
    const adapters::SystemClock clock_;
    simulator::DemoAccount account_{clock_, api::KeychainHelper::item, std::chrono::milliseconds(250)};
};

int tellStatus(int argc, char** argv, const QString& name, bool asJSON)
{
    const QCoreApplication qt(argc, argv);
    const adapters::SessionBus bus;
    return printStatus(bus.connection(), name, asJSON, [] {
        adapters::MainExecutor main;
        DemoService service;
        return fetchStatus(main, service.access());
    });
}

int start(int argc, char** argv, const QString& name, bool isMinimized)
{
    const QString activationToken = adapters::launchActivationToken();
    chooseRenderer();
    const QGuiApplication qt(argc, argv);
    // Appended to the window's title.
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Demo"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.kestrune.larkspan"));
    // The desktop knows an installed program's icon; the demo is not installed.
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/com.kestrune.larkspan.svg")));

    const adapters::SessionBus bus;
    adapters::SingleInstance instance(bus, name);
    using adapters::SingleInstance;
    const auto raise = isMinimized ? SingleInstance::Raise::no : SingleInstance::Raise::yes;
    if (instance.claim(activationToken, raise) == SingleInstance::Standing::second) return 0;
    lookUpFonts();

    DemoService service;
    adapters::MainExecutor main;
    Application application(main, service.access(), bus);
    return application.run(instance, isMinimized);
}

}  // namespace

}  // namespace larkspan

int main(int argc, char* argv[])
{
    using namespace larkspan;

    support::endWhenMemoryRunsOut();
    const auto read = adapters::readArguments(argc, argv, "larkspan-demo", BuildSettings::versionAndBuild);
    if (const auto* const code = std::get_if<int>(&read)) return *code;
    const auto arguments = std::get<adapters::Arguments>(read);
    // A separate name, so that the demo can run beside the program.
    const auto name = QStringLiteral("com.kestrune.larkspan.demo");
    if (arguments.asksForStatus) return tellStatus(argc, argv, name, arguments.asJSON);
    return start(argc, argv, name, arguments.isMinimized);
}
