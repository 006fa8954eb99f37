#include <chrono>

#include "Launch.h"
#include "adapters/SystemClock.h"
#include "api/KeychainHelper.h"
#include "demo/DemoAccount.h"
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

}  // namespace

}  // namespace larkspan

int main(int argc, char* argv[])
{
    using namespace larkspan;

    support::endWhenMemoryRunsOut();
    return launch(argc, argv,
        {
            .executable = "larkspan-demo",
            // A separate name, so that the demo can run beside the program.
            .busName = QStringLiteral("com.kestrune.larkspan.demo"),
            // Appended to the window's title.
            .displayName = QStringLiteral("Demo"),
            .icon = QStringLiteral(":/com.kestrune.larkspan.svg"),
            .withService =
                [](auto&, const auto&, auto, const Launch::Use& use) {
                    DemoService service;
                    use(service.access());
                },
        });
}
