#pragma once

#include <chrono>
#include <string_view>

#include "server/OpenSsl.h"

namespace larkspan::simulator {

/// A client's TLS connection, including the way in which it ends. A shutdown of the socket ends all waits.
class Connection {
public:
    /// Takes ownership of the socket.
    Connection(int socket, SSL_CTX* context);

    /// Ends the connection in the way that was requested last, by default with an orderly close.
    ~Connection();

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Performs the TLS handshake; returns false if it fails.
    bool accept();

    /// Whether bytes from the client are available within that time; the end of the connection counts too.
    bool hasBytes(std::chrono::milliseconds within) const;

    /// Returns the number of bytes read, 0 at the end.
    std::size_t read(void* data, std::size_t size);

    /// Returns false if the client is gone.
    bool write(std::string_view bytes);

    /// Waits; returns false if the connection ended meanwhile.
    bool pause(std::chrono::milliseconds time) const;

    /// Ends the connection without telling the client that nothing follows.
    void endAbruptly() { ending_ = Ending::abrupt; }

    void endByReset() { ending_ = Ending::reset; }

private:
    enum class Ending { inOrder, abrupt, reset };

    int socket_;
    SslPointer ssl_;
    Ending ending_ = Ending::inOrder;
};

}  // namespace larkspan::simulator
