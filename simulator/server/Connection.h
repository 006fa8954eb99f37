#pragma once

#include <chrono>
#include <string_view>

#include "server/OpenSsl.h"

namespace larkspan::simulator {

/// A client's connection over TLS, down to how it ends. Whatever waits is woken by a shutdown of the socket.
class Connection {
public:
    /// Owns the socket.
    Connection(int socket, SSL_CTX* context);

    /// Ends it in the way that was asked for last, and in good order unless another was.
    ~Connection();

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Agrees on TLS; false if the client would not.
    bool accept();

    /// Whether bytes of the client are there or come within that time; its going away counts too.
    bool hasBytes(std::chrono::milliseconds within) const;

    /// How many came, 0 if no more will.
    std::size_t read(void* data, std::size_t size);

    /// False if the client is gone.
    bool write(std::string_view bytes);

    /// Lets time pass; false if the connection ended meanwhile.
    bool pause(std::chrono::milliseconds time) const;

    /// The client shall not be told that this is the end.
    void endAbruptly() { ending_ = Ending::abrupt; }

    void endByReset() { ending_ = Ending::reset; }

private:
    enum class Ending { inOrder, abrupt, reset };

    int socket_;
    SslPointer ssl_;
    Ending ending_ = Ending::inOrder;
};

}  // namespace larkspan::simulator
