// Measures the CPU time of one refresh cycle in the client by the size of the account: the real client code on one
// thread, with prepared answers in memory.
//
// usage: larkspan-bench-cycle PAGES CYCLES      prints the median in milliseconds

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Arguments.h"
#include "Client.h"
#include "Median.h"
#include "account/Seed.h"
#include "fakes/ManualExecutor.h"

namespace {

using namespace larkspan;

// Not inlined, so that a profiler can count this function only.
[[gnu::noinline]] void runMeasuredCycle(core::AppStateManager& state, fakes::ManualExecutor& executor)
{
    state.refreshNow();
    executor.run();
}

double cpuMilliseconds()
{
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double medianOfCycles(std::size_t pages, std::size_t cycles)
{
    fakes::ManualExecutor executor;
    simulator::Account account{.keys = {}, .statusPages = simulator::seededPages(pages)};
    bench::Client client(std::move(account), executor, executor);
    client.state().refreshNow();
    executor.run();
    if (client.state().statusPages->size() != pages) {
        throw std::runtime_error("the first cycle did not bring the account's pages");
    }

    std::vector<double> times;
    for (std::size_t count = 0; count < cycles; ++count) {
        const auto before = cpuMilliseconds();
        runMeasuredCycle(client.state(), executor);
        times.push_back(cpuMilliseconds() - before);
    }
    return bench::median(std::move(times));
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: larkspan-bench-cycle PAGES CYCLES\n", stderr);
        return 2;
    }
    try {
        const auto pages = larkspan::bench::number(argv[1]);
        std::printf("%.4f\n", medianOfCycles(pages, std::max<std::size_t>(larkspan::bench::number(argv[2]), 1)));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-cycle: %s\n", error.what());
        return 1;
    }
    return 0;
}
