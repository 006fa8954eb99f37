#include <QDBusConnection>
#include <QGuiApplication>

#include <optional>

#include "Application.h"
#include "BuildSettings.h"
#include "adapters/ActivationToken.h"
#include "adapters/CommandLine.h"
#include "adapters/HardenProcess.h"
#include "adapters/MainExecutor.h"
#include "adapters/SingleInstance.h"
#include "adapters/http/ClientLoop.h"
#include "adapters/http/CurlTransport.h"
#include "adapters/http/PortalProxies.h"
#include "adapters/secrets/SecretServiceStore.h"
#include "qml/Fonts.h"
#include "qml/Renderer.h"

int main(int argc, char* argv[])
{
    using namespace larkspan;

    adapters::hardenProcess();
    if (const auto code = adapters::answerOnTerminal(argc, argv, "larkspan", BuildSettings::versionAndBuild))
        return *code;
    const QString activationToken = adapters::launchActivationToken();
    chooseRenderer();
    const QGuiApplication qt(argc, argv);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Kestrune"));
    const auto name = QStringLiteral("com.kestrune.larkspan");
    QGuiApplication::setDesktopFileName(name);

    adapters::SingleInstance instance(QDBusConnection::sessionBus(), name);
    if (instance.claim(activationToken) == adapters::SingleInstance::Standing::second) return 0;
    lookUpFonts();

    adapters::MainExecutor main;
    adapters::PortalProxies proxies(QDBusConnection::sessionBus(), main);
    adapters::SecretServiceStore credentials;
    std::optional<adapters::ClientLoop> client(std::in_place);
    // The keyring may have to be started, and negotiates a cipher: both happen while the screens load.
    client->post([&credentials] { credentials.open(); });
    adapters::CurlTransport transport(*client, {.proxies = &proxies});
    Application application(main,
        {
            .host = BuildSettings::serviceHost,
            .client = *client,
            .transport = transport,
            .credentials = credentials,
            .stop =
                [&] {
                    credentials.stop();
                    transport.stop();
                    client.reset();
                },
        });
    return application.run(instance);
}
