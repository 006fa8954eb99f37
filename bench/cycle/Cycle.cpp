// Measures the CPU that one refresh cycle takes of the client, by the size of the account: the real client code
// on one thread, over answers that stand ready in memory.
//
// usage: larkspan-bench-cycle PAGES CYCLES      prints the median in milliseconds

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "PreparedTransport.h"
#include "account/Seed.h"
#include "api/KestruneAPI.h"
#include "api/KeychainHelper.h"
#include "core/AppStateManager.h"
#include "demo/MemoryCredentialStore.h"
#include "fakes/FakeNetworkPathMonitor.h"
#include "fakes/FakeNotificationCenter.h"
#include "fakes/FakeStatusItem.h"
#include "fakes/FakeUpdater.h"
#include "fakes/FakeWindowSystem.h"
#include "fakes/ManualClock.h"
#include "fakes/ManualExecutor.h"
#include "fakes/ManualTimers.h"

namespace {

using namespace larkspan;

constexpr const char* key = "bench";

/// The client with everything around it in memory.
class Client {
public:
    explicit Client(std::size_t pages)
        : service_({{{key, simulator::KeyRights::full}}, simulator::seededPages(pages)})
    {
        api::KeychainHelper::saveAPIKey(store_, key);
    }

    std::size_t pages() const { return state_->statusPages->size(); }

    void runCycle()
    {
        state_->refreshNow();
        executor_.run();
    }

    // Kept out of line, so that a profiler can be told to count this and nothing else.
    [[gnu::noinline]] void runMeasuredCycle() { runCycle(); }

private:
    fakes::ManualExecutor executor_;
    fakes::ManualTimers timers_;
    fakes::ManualClock clock_;
    fakes::FakeNotificationCenter notifications_;
    fakes::FakeNetworkPathMonitor networkMonitor_;
    fakes::FakeStatusItem statusItem_;
    fakes::FakeUpdater updater_;
    std::shared_ptr<core::UpdaterController> updates_ = std::make_shared<core::UpdaterController>(updater_);
    fakes::FakeWindowSystem windows_;
    simulator::MemoryCredentialStore store_;
    simulator::Service service_;
    bench::PreparedTransport transport_{service_, executor_};
    api::KestruneAPI api_{{executor_, transport_, store_, clock_}, "kestrune.example"};
    std::shared_ptr<core::AppStateManager> state_ = core::AppStateManager::make(
        {executor_, timers_, clock_, notifications_, networkMonitor_, statusItem_, updates_, windows_, api_});
};

double cpuMilliseconds()
{
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double medianOfCycles(std::size_t pages, std::size_t cycles)
{
    Client client(pages);
    client.runCycle();
    if (client.pages() != pages) throw std::runtime_error("the first cycle did not bring the account's pages");

    std::vector<double> times;
    for (std::size_t count = 0; count < cycles; ++count) {
        const auto before = cpuMilliseconds();
        client.runMeasuredCycle();
        times.push_back(cpuMilliseconds() - before);
    }
    std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
    return times[times.size() / 2];
}

std::size_t number(const char* text)
{
    std::size_t value = 0;
    const auto* const end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, value);
    if (error != std::errc{} || stop != end) throw std::runtime_error(std::string(text) + " is no number");
    return value;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: larkspan-bench-cycle PAGES CYCLES\n", stderr);
        return 2;
    }
    try {
        std::printf("%.4f\n", medianOfCycles(number(argv[1]), std::max<std::size_t>(number(argv[2]), 1)));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-cycle: %s\n", error.what());
        return 1;
    }
    return 0;
}
