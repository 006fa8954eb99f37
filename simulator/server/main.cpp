#include <csignal>
#include <exception>
#include <iostream>

#include "account/Seed.h"
#include "account/Storyline.h"
#include "server/AuthorityStore.h"
#include "server/HttpsServer.h"
#include "server/Options.h"

namespace {

using namespace larkspan;

/// Blocks the signals for `waitForSignal` in this thread and all that it starts.
sigset_t holdSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGHUP);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

void serve(const simulator::Options& options)
{
    const auto signals = holdSignals();
    auto account = simulator::seededAccount(*simulator::seedSize(options.seed), simulator::wallClock().now());
    account.keys.emplace(options.key, simulator::KeyRights::full);
    simulator::Service service(std::move(account));
    service.setShape(options.shape);
    if (options.isLiving) service.live(simulator::Storyline::ordinaryDay());

    const simulator::AuthorityStore store(options.directory);
    simulator::ServerCertificates certificates(store.authority(), options.certificate, options.host);
    const simulator::HttpsServer server(service, certificates, options.port);
    std::cout << "https://localhost:" << server.port() << "\nauthority: " << store.certificateFile().string()
              << std::endl;

    int signal = 0;
    sigwait(&signals, &signal);
}

}  // namespace

int main(int argc, char** argv)
{
    const auto asked = simulator::readOptions({argv + 1, argv + argc});
    if (const auto* explanation = std::get_if<simulator::Explanation>(&asked)) {
        (explanation->isError ? std::cerr : std::cout) << explanation->text;
        return explanation->isError ? 2 : 0;
    }
    try {
        serve(std::get<simulator::Options>(asked));
    } catch (const std::exception& error) {
        std::cerr << "larkspan-simulator: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
