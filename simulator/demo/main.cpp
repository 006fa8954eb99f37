#include <QGuiApplication>
#include <QIcon>

#include <chrono>

#include "Application.h"
#include "adapters/ActivationToken.h"
#include "adapters/MainExecutor.h"
#include "adapters/SystemClock.h"
#include "adapters/TerminationSignals.h"
#include "api/KeychainHelper.h"
#include "demo/DemoAccount.h"
#include "qml/Fonts.h"
#include "qml/Renderer.h"

int main(int argc, char* argv[])
{
    using namespace larkspan;

    chooseRenderer();
    const QGuiApplication qt(argc, argv);
    lookUpFonts();
    QGuiApplication::setDesktopFileName(QStringLiteral("com.kestrune.larkspan"));
    // The desktop knows the program's icon once that is installed; the demo runs without.
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/com.kestrune.larkspan.svg")));

    const adapters::SystemClock clock;
    simulator::DemoAccount account(clock, api::KeychainHelper::item, std::chrono::milliseconds(250));
    adapters::MainExecutor main;
    Application application(main,
        {
            .host = "demo.kestrune.example",
            .client = account.executor(),
            .transport = account.transport(),
            .credentials = account.credentialStore(),
            .stop = [&account] { account.stop(); },
        });

    const adapters::TerminationSignals termination;
    QObject::connect(&termination, &adapters::TerminationSignals::requested, &application, &Application::quit);
    return application.run();
}
