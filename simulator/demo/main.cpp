#include <QDBusConnection>
#include <QGuiApplication>
#include <QIcon>

#include <chrono>

#include "Application.h"
#include "BuildSettings.h"
#include "adapters/ActivationToken.h"
#include "adapters/CommandLine.h"
#include "adapters/MainExecutor.h"
#include "adapters/SingleInstance.h"
#include "adapters/SystemClock.h"
#include "api/KeychainHelper.h"
#include "demo/DemoAccount.h"
#include "qml/Fonts.h"
#include "qml/Renderer.h"

int main(int argc, char* argv[])
{
    using namespace larkspan;

    if (const auto code = adapters::answerOnTerminal(argc, argv, "larkspan-demo", BuildSettings::versionAndBuild))
        return *code;
    const QString activationToken = adapters::launchActivationToken();
    chooseRenderer();
    const QGuiApplication qt(argc, argv);
    // Appended to the window's title.
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Demo"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.kestrune.larkspan"));
    // The desktop knows an installed program's icon; the demo is not installed.
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/com.kestrune.larkspan.svg")));

    // A separate name, so that the demo can run beside the program.
    adapters::SingleInstance instance(QDBusConnection::sessionBus(), QStringLiteral("com.kestrune.larkspan.demo"));
    if (instance.claim(activationToken) == adapters::SingleInstance::Standing::second) return 0;
    lookUpFonts();

    const adapters::SystemClock clock;
    simulator::DemoAccount account(clock, api::KeychainHelper::item, std::chrono::milliseconds(250));
    adapters::MainExecutor main;
    Application application(main,
        {
            .host = "demo.kestrune.example",
            .client = account.executor(),
            .transport = account.transport(),
            .credentials = account.credentialStore(),
            .demoKey = simulator::DemoAccount::key,
            .stop = [&account] { account.stop(); },
        });
    return application.run(instance);
}
