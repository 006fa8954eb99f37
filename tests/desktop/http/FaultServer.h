#pragma once

#include <openssl/ssl.h>

#include <array>
#include <atomic>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "Authority.h"

namespace larkspan::adapters {

/// A request as it arrived.
struct ReceivedRequest {
    std::string line;
    std::vector<std::string> headers;
    std::string body;
    /// Which of the server's connections it came on, from 1.
    int connection = 0;

    /// The value of a header, its name in lower case; absent if the request has none.
    std::optional<std::string> header(std::string_view name) const;
};

/// One TLS connection in the hands of a test's script. What is written to a peer that is gone is lost silently.
class Conversation {
public:
    Conversation(int socket, SSL* tls);
    ~Conversation();
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    bool write(std::string_view bytes);

    /// A whole answer, on a connection that stays.
    void answer(std::string_view status, std::string_view body = {}, std::string_view moreHeaders = {});

    /// The orderly end: TLS says that nothing follows.
    void close();
    /// The stream ends and TLS says nothing.
    void cut();
    /// The connection breaks.
    void reset();
    /// Says nothing until the peer goes, or the server.
    void hang();

    bool isOpen() const { return isOpen_; }

    // For the server.
    bool shakeHands() { return SSL_accept(tls_.get()) == 1; }
    void ignore();
    std::optional<ReceivedRequest> read();
    void interrupt();

private:
    std::optional<std::string> readLine();
    bool readMore();

    int socket_;
    std::unique_ptr<SSL, decltype(&SSL_free)> tls_;
    std::string buffer_;
    bool isOpen_ = true;
};

/// An HTTPS server on loopback that answers as each test scripts it, faults included.
class FaultServer {
public:
    /// Called for each request, on the thread of its connection, which waits for the next request afterwards.
    using Script = std::function<void(Conversation&, const ReceivedRequest&)>;

    struct TlsVersions {
        int lowest = TLS1_2_VERSION;
        int highest = TLS1_3_VERSION;
    };

    FaultServer(const Identity& identity, Script script, TlsVersions versions = {TLS1_2_VERSION, TLS1_3_VERSION});
    ~FaultServer();
    FaultServer(const FaultServer&) = delete;
    FaultServer& operator=(const FaultServer&) = delete;

    /// From now on connections are taken and nothing is said on them.
    void stopShakingHands() { isMute_ = true; }

    int port() const { return port_; }
    std::string url(const std::string& target = "/") const;

    /// Every request that arrived whole, in order.
    std::vector<ReceivedRequest> requests() const;

    /// How many handshakes have succeeded.
    int handshakes() const { return handshakes_; }

    /// How many connections have arrived, whatever became of them.
    int connections() const { return connections_; }

private:
    struct Peer {
        std::unique_ptr<Conversation> conversation;
        std::jthread thread;
    };

    void accept();
    void serve(Peer& peer, int number);
    void record(const ReceivedRequest& request);

    Script script_;
    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context_;
    int listener_;
    int port_ = 0;
    std::atomic<int> connections_{0};
    std::atomic<int> handshakes_{0};
    std::atomic<bool> isMute_{false};
    std::atomic<bool> isEnding_{false};
    mutable std::mutex mutex_;
    std::vector<ReceivedRequest> requests_;
    std::list<Peer> peers_;
    std::jthread acceptor_;
};

}  // namespace larkspan::adapters
