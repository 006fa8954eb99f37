// Measures how long a refresh cycle blocks the main thread, by the number of incidents: the longest single turn of its
// event loop, while the window's dashboard, its menu and the panel's follow each change. The work of the client's own
// thread, mainly decoding, is reported separately.
//
// usage: larkspan-bench-turns INCIDENTS CYCLES      prints two medians in milliseconds: the longest turn of the main
//                                                   thread and all of the client's thread, per cycle

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "Arguments.h"
#include "Median.h"
#include "Window.h"
#include "account/Seed.h"
#include "service/WallClock.h"

namespace {

using namespace larkspan;

simulator::Account accountWith(std::size_t incidents)
{
    auto account = simulator::seededAccount(10, simulator::wallClock().now());
    account.incidents.clear();
    for (std::size_t count = 0; count < incidents; ++count) {
        simulator::Incident incident;
        incident.id = "incident-" + std::to_string(count);
        incident.title = "Login errors for the customers of region " + std::to_string(count);
        incident.message = "We see **elevated errors** on sign-in.\n\n- EU region only\n- Retrying helps";
        account.incidents.push_back(std::move(incident));
    }
    return account;
}

void measure(std::size_t incidents, std::size_t cycles)
{
    bench::Window window(accountWith(incidents));
    std::vector<double> turns;
    std::vector<double> work;
    for (std::size_t count = 0; count <= cycles; ++count) {
        window.main().restart();
        window.worker().restart();
        window.refresh();
        if (window.client().state().incidents->size() != incidents)
            throw std::runtime_error("a cycle did not bring the incidents");
        // The first one fetches the answers that the transport then remembers.
        if (count == 0) continue;
        turns.push_back(window.main().longest());
        work.push_back(window.worker().all());
    }
    std::printf("%.4f %.4f\n", bench::median(turns), bench::median(work));
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: larkspan-bench-turns INCIDENTS CYCLES\n", stderr);
        return 2;
    }
    try {
        measure(larkspan::bench::number(argv[1]), std::max<std::size_t>(larkspan::bench::number(argv[2]), 1));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-turns: %s\n", error.what());
        return 1;
    }
    return 0;
}
