// Measures how long the largest body that the client accepts, a list of as many pages as have room in it, holds up the
// main thread: the longest single turn of its event loop, while the list comes for the first time and in another order.
//
// usage: larkspan-bench-largest [BYTES]     prints milliseconds; without a number for the limit of the client

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

#include "Arguments.h"
#include "Client.h"
#include "TimedExecutor.h"
#include "adapters/http/TransportSettings.h"
#include "bridge/DashboardBridge.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "workspace/Dashboard.h"

namespace {

using namespace larkspan;

/// The other order is that in which every other page comes first.
std::string pages(std::size_t bytes, bool inOtherOrder)
{
    const auto page = [](std::size_t number) { return R"({"id":")" + std::to_string(number) + R"(","name":""},)"; };
    const auto count = bytes / page(1'000'000).size();
    std::string body = "[";
    body.reserve(bytes);
    const std::size_t step = inOtherOrder ? 2 : 1;
    for (std::size_t first = 0; first < step; ++first) {
        for (auto number = first; number < count; number += step) body += page(number);
    }
    body.back() = ']';
    return body;
}

double longestTurn(std::size_t bytes)
{
    bench::TimedExecutor main;
    bench::TimedExecutor worker;
    bench::Client client({}, main, worker);
    api::APIKeyStore keys(worker, client.store());
    const fakes::FakeLocaleText locale;
    fakes::FakeLinkOpener links;
    auto dashboard = std::make_shared<workspace::Dashboard>(workspace::Dashboard::Ports{main, client.timers(),
        client.clock(), client.store(), keys, client.sharedState(), locale, links, client.api()});
    const bridge::ScreenUpdates updates(main);
    const bridge::DashboardBridge window(dashboard, updates);

    main.restart();
    for (const bool inOtherOrder : {false, true}) {
        client.prepare("status-pages", pages(bytes, inOtherOrder));
        client.state().refreshNow();
        while (main.turn() | worker.turn()) {}
    }
    return main.longest();
}

}  // namespace

int main(int argc, char** argv)
{
    try {
        std::printf("%.4f\n", longestTurn(argc > 1 ? larkspan::bench::number(argv[1]) : adapters::largestBodyTaken));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-largest: %s\n", error.what());
        return 1;
    }
    return 0;
}
