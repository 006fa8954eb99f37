#include <QGuiApplication>

#include <optional>
#include <variant>

#include "Application.h"
#include "BuildSettings.h"
#include "StatusCommand.h"
#include "adapters/ActivationToken.h"
#include "adapters/CommandLine.h"
#include "adapters/HardenProcess.h"
#include "adapters/MainExecutor.h"
#include "adapters/SessionBus.h"
#include "adapters/SingleInstance.h"
#include "adapters/http/ClientLoop.h"
#include "adapters/http/CurlTransport.h"
#include "adapters/http/PortalProxies.h"
#include "adapters/secrets/SecretServiceStore.h"
#include "qml/Fonts.h"
#include "qml/Renderer.h"
#include "support/FatalError.h"

namespace larkspan {

namespace {

using Prompts = adapters::SecretServiceStore::Prompts;

/// The service over HTTPS, with the key in the user's keyring.
class Service {
public:
    Service(adapters::MainExecutor& main, const adapters::SessionBus& bus, Prompts prompts)
        : proxies_(bus, main)
        , credentials_(std::chrono::seconds(10), prompts)
    {
        // The keyring may have to be started, and negotiates a cipher: both happen while the screens load.
        client_->post([this] { credentials_.open(); });
    }

    ServiceAccess access()
    {
        return {
            .host = BuildSettings::serviceHost,
            .client = *client_,
            .transport = transport_,
            .credentials = credentials_,
            .stop =
                [this] {
                    credentials_.stop();
                    transport_.stop();
                    client_.reset();
                },
        };
    }

private:
    adapters::PortalProxies proxies_;
    adapters::SecretServiceStore credentials_;
    std::optional<adapters::ClientLoop> client_{std::in_place};
    adapters::CurlTransport transport_{*client_, {.proxies = &proxies_}};
};

int tellStatus(int argc, char** argv, const QString& name, bool asJSON)
{
    const QCoreApplication qt(argc, argv);
    const adapters::SessionBus bus;
    return printStatus(bus.connection(), name, asJSON, [&bus] {
        adapters::MainExecutor main;
        Service service(main, bus, Prompts::never);
        return fetchStatus(main, service.access());
    });
}

int start(int argc, char** argv, const QString& name, bool isMinimized)
{
    const QString activationToken = adapters::launchActivationToken();
    chooseRenderer();
    const QGuiApplication qt(argc, argv);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Kestrune"));
    QGuiApplication::setDesktopFileName(name);

    const adapters::SessionBus bus;
    adapters::SingleInstance instance(bus, name);
    using adapters::SingleInstance;
    const auto raise = isMinimized ? SingleInstance::Raise::no : SingleInstance::Raise::yes;
    if (instance.claim(activationToken, raise) == SingleInstance::Standing::second) return 0;
    lookUpFonts();

    adapters::MainExecutor main;
    Service service(main, bus, Prompts::allowed);
    Application application(main, service.access(), bus);
    return application.run(instance, isMinimized);
}

}  // namespace

}  // namespace larkspan

int main(int argc, char* argv[])
{
    using namespace larkspan;

    support::endWhenMemoryRunsOut();
    adapters::hardenProcess();
    const auto read = adapters::readArguments(argc, argv, "larkspan", BuildSettings::versionAndBuild);
    if (const auto* const code = std::get_if<int>(&read)) return *code;
    const auto arguments = std::get<adapters::Arguments>(read);
    const auto name = QStringLiteral("com.kestrune.larkspan");
    if (arguments.asksForStatus) return tellStatus(argc, argv, name, arguments.asJSON);
    return start(argc, argv, name, arguments.isMinimized);
}
