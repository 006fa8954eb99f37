#include <chrono>
#include <optional>

#include "BuildSettings.h"
#include "Launch.h"
#include "adapters/HardenProcess.h"
#include "adapters/http/ClientLoop.h"
#include "adapters/http/CurlTransport.h"
#include "adapters/http/PortalProxies.h"
#include "support/FatalError.h"

namespace larkspan {

namespace {

/// The service over HTTPS, with the key in the user's keyring.
class Service {
public:
    Service(adapters::MainExecutor& main, const adapters::SessionBus& bus, Launch::Prompts prompts)
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

}  // namespace

}  // namespace larkspan

int main(int argc, char* argv[])
{
    using namespace larkspan;

    support::endWhenMemoryRunsOut();
    adapters::hardenProcess();
    return launch(argc, argv,
        {
            .executable = "larkspan",
            .busName = QStringLiteral("com.kestrune.larkspan"),
            .displayName = QStringLiteral("Kestrune"),
            .withService =
                [](auto& main, const auto& bus, auto prompts, const Launch::Use& use) {
                    Service service(main, bus, prompts);
                    use(service.access());
                },
        });
}
