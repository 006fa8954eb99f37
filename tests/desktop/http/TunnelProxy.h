#pragma once

#include <atomic>
#include <list>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace larkspan::adapters {

/// A plain HTTP proxy on loopback that opens tunnels to anywhere, or refuses them.
class TunnelProxy {
public:
    /// Answers each CONNECT with `status`, and tunnels only after "200".
    explicit TunnelProxy(std::string status = "200 Connection established");
    ~TunnelProxy();
    TunnelProxy(const TunnelProxy&) = delete;
    TunnelProxy& operator=(const TunnelProxy&) = delete;

    std::string url() const { return "http://127.0.0.1:" + std::to_string(port_); }

    /// The heads of the received requests, each as one text.
    std::vector<std::string> heads() const;

private:
    void accept();
    void serve(int client);

    const std::string status_;
    int listener_;
    int port_;
    std::atomic<bool> isEnding_{false};
    mutable std::mutex mutex_;
    std::vector<std::string> heads_;
    std::list<std::jthread> tunnels_;
    std::vector<int> sockets_;
    std::jthread acceptor_;
};

}  // namespace larkspan::adapters
