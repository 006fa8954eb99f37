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

struct ReceivedRequest {
    std::string line;
    std::vector<std::string> headers;
    std::string body;
    /// The number of the server's connection on which it came, from 1.
    int connection = 0;

    /// The value of a header, its name in lower case; absent if the request has none.
    std::optional<std::string> header(std::string_view name) const;
};

/// One TLS connection for a test's script. Writes to a peer that has disconnected are ignored.
class Conversation {
public:
    Conversation(int socket, SSL* tls);
    ~Conversation();
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    bool write(std::string_view bytes);

    /// Sends a complete answer; the connection stays open.
    void answer(std::string_view status, std::string_view body = {}, std::string_view moreHeaders = {});

    /// Ends the connection in order: TLS announces the end.
    void close();
    /// Ends the stream without an announcement by TLS.
    void cut();
    /// Resets the connection.
    void reset();
    /// Sends nothing until the peer or the server ends.
    void hang();

    bool isOpen() const { return isOpen_; }

    // For the server.
    bool shakeHands() { return SSL_accept(tls_.get()) == 1; }
    void writeWithoutTls(std::string_view bytes);
    void awaitFirstBytes();
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

/// An HTTPS server on loopback that answers with the test's script, including faults.
class FaultServer {
public:
    /// Called for each request on the thread of its connection, which then waits for the next request.
    using Script = std::function<void(Conversation&, const ReceivedRequest&)>;

    struct TlsVersions {
        int lowest = TLS1_2_VERSION;
        int highest = TLS1_3_VERSION;
    };

    FaultServer(const Identity& identity, Script script, TlsVersions versions = {TLS1_2_VERSION, TLS1_3_VERSION});
    ~FaultServer();
    FaultServer(const FaultServer&) = delete;
    FaultServer& operator=(const FaultServer&) = delete;

    /// What new connections meet in place of the handshake of TLS.
    enum class Greeting { handshake, silence, close, reset, plainText };
    void greet(Greeting greeting) { greeting_ = greeting; }

    /// What new connections are shown from now on. `identity` need not outlive the call.
    void present(const Identity& identity, TlsVersions versions);

    /// Refuses connections until `listenAgain`, which keeps the port.
    void stopListening();
    void listenAgain();

    int port() const { return port_; }
    std::string url(const std::string& target = "/") const;

    /// Every complete request, in order.
    std::vector<ReceivedRequest> requests() const;

    /// The number of handshakes that have succeeded.
    int handshakes() const { return handshakes_; }

    /// The number of connections, whatever became of them.
    int connections() const { return connections_; }

private:
    struct Peer {
        std::unique_ptr<Conversation> conversation;
        std::jthread thread;
    };

    void accept();
    void serve(Peer& peer, int number);
    bool shakeHands(Conversation& conversation);
    void record(const ReceivedRequest& request);

    Script script_;
    // The acceptor and `present` take turns on it.
    std::mutex contextMutex_;
    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context_;
    int listener_;
    int port_ = 0;
    std::atomic<int> connections_{0};
    std::atomic<int> handshakes_{0};
    std::atomic<Greeting> greeting_{Greeting::handshake};
    std::atomic<bool> isEnding_{false};
    mutable std::mutex mutex_;
    std::vector<ReceivedRequest> requests_;
    std::list<Peer> peers_;
    std::jthread acceptor_;
};

}  // namespace larkspan::adapters
