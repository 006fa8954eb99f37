// Prints the CPU time of a request on the client's thread, in milliseconds: over a new connection, verified with the
// system's whole bundle, and over a kept one.
#include <ctime>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <future>

#include "Authority.h"
#include "FaultServer.h"
#include "adapters/http/ClientLoop.h"
#include "adapters/http/CurlTransport.h"

namespace {

using namespace larkspan;

/// The system's bundle with the test's authority appended.
class WholeBundle {
public:
    explicit WholeBundle(const adapters::Authority& authority)
    {
        std::ofstream out(path_);
        out << std::ifstream(adapters::systemCertificateBundle()).rdbuf() << std::ifstream(authority.bundle()).rdbuf();
    }
    ~WholeBundle() { std::filesystem::remove(path_); }
    WholeBundle(const WholeBundle&) = delete;
    WholeBundle& operator=(const WholeBundle&) = delete;

    const std::string& path() const { return path_; }

private:
    const std::string path_ = std::filesystem::temp_directory_path() / "larkspan-connection-cost.pem";
};

double millisecondsOfCpu(adapters::ClientLoop& loop)
{
    std::promise<double> measured;
    loop.post([&] {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        measured.set_value(static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6);
    });
    return measured.get_future().get();
}

double costPerRequest(
    adapters::ClientLoop& loop, adapters::CurlTransport& transport, const platform::HttpRequest& request, int count)
{
    const auto before = millisecondsOfCpu(loop);
    for (int i = 0; i < count; ++i) {
        std::promise<bool> ended;
        transport.send(request, {}, [&](const platform::HttpTransport::Result& result) {
            ended.set_value(std::holds_alternative<platform::HttpResponse>(result));
        });
        if (!ended.get_future().get()) std::fprintf(stderr, "a request failed\n");
    }
    return (millisecondsOfCpu(loop) - before) / count;
}

}  // namespace

int main()
{
    const adapters::Authority authority("Authority of the measurement");
    const WholeBundle bundle(authority);
    adapters::FaultServer server(
        authority.issue(), [](adapters::Conversation& peer, const auto&) { peer.answer("200 OK", "{}"); });
    adapters::ClientLoop loop;
    adapters::TransportSettings settings;
    settings.certificateBundle = bundle.path();
    adapters::CurlTransport transport(loop, settings);

    platform::HttpRequest write;
    write.method = "POST";
    write.url = server.url();
    auto read = write;
    read.method = "GET";

    std::printf("first connection  %6.3f ms\n", costPerRequest(loop, transport, write, 1));
    std::printf("fresh connection  %6.3f ms\n", costPerRequest(loop, transport, write, 300));
    std::printf("kept connection   %6.3f ms\n", costPerRequest(loop, transport, read, 3'000));
}
