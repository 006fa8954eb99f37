#pragma once

#include <httplib.h>

#include <chrono>

#include "server/OpenSsl.h"
#include "service/Exchange.h"

namespace larkspan::simulator {

/// A client's connection, down to its bytes: every byte of an answer passes here, and what is wrong with
/// its way is done to it here.
class Connection final : public httplib::Stream {
public:
    /// Owns the socket.
    Connection(int socket, SSL_CTX* context);
    ~Connection() override;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// The connection of a request that the server is handling.
    static Connection& of(const httplib::Request& request);

    /// Agrees on TLS; false if the client would not.
    bool accept();

    /// Waits for the next request; false when there will be none.
    bool waitForRequest(std::chrono::milliseconds longest);

    SSL* ssl() const { return ssl_.get(); }

    /// How the answer to the current request shall travel.
    void deliver(const Delivery& delivery);

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char* data, size_t size) override;
    ssize_t write(const char* data, size_t size) override;
    void get_remote_ip_and_port(std::string& address, int& port) const override;
    void get_local_ip_and_port(std::string& address, int& port) const override;
    socket_t socket() const override { return socket_; }

private:
    enum class Stage { beforeAnswer, head, body, ended };

    ssize_t writeHead(const char* data, size_t size);
    ssize_t writeBody(const char* data, size_t size);
    bool writeAll(const char* data, size_t size);
    bool pause(std::chrono::milliseconds time);
    ssize_t end();

    int socket_;
    SslPointer ssl_;
    Stage stage_ = Stage::beforeAnswer;
    Delivery delivery_;
    std::uint64_t bodyBytesSent_ = 0;
    bool isReset_ = false;
};

}  // namespace larkspan::simulator
