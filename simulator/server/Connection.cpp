#include "server/Connection.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

namespace larkspan::simulator {

namespace {

using Ending = Delivery::Ending;

/// Whether one of `events` came within the time; an error counts as one.
bool comes(int socket, short events, std::chrono::milliseconds within)
{
    pollfd watched{socket, events, 0};
    const auto longest = std::min<std::chrono::milliseconds::rep>(within.count(), std::numeric_limits<int>::max());
    return ::poll(&watched, 1, static_cast<int>(longest)) > 0;
}

void setAddress(int (*ask)(int, sockaddr*, socklen_t*), int socket, std::string& address, int& port)
{
    sockaddr_in found{};
    socklen_t length = sizeof found;
    if (ask(socket, reinterpret_cast<sockaddr*>(&found), &length) != 0) return;
    std::string text(INET_ADDRSTRLEN, '\0');
    if (!::inet_ntop(AF_INET, &found.sin_addr, text.data(), INET_ADDRSTRLEN)) return;
    address = text.c_str();
    port = ntohs(found.sin_port);
}

}  // namespace

Connection::Connection(int socket, SSL_CTX* context)
    : socket_(socket)
    , ssl_(SSL_new(context))
{
    requireSuccess(
        ssl_ && SSL_set_fd(ssl_.get(), socket) == 1 && SSL_set_app_data(ssl_.get(), this) == 1, "take a connection");
}

Connection::~Connection()
{
    if (stage_ != Stage::ended) SSL_shutdown(ssl_.get());
    if (isReset_) {
        const linger atOnce{1, 0};
        ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    }
    ::close(socket_);
}

Connection& Connection::of(const httplib::Request& request)
{
    return *static_cast<Connection*>(SSL_get_app_data(request.ssl));
}

bool Connection::accept()
{
    if (SSL_accept(ssl_.get()) == 1) return true;
    stage_ = Stage::ended;
    return false;
}

bool Connection::waitForRequest(std::chrono::milliseconds longest)
{
    if (stage_ == Stage::ended) return false;
    stage_ = Stage::beforeAnswer;
    return SSL_has_pending(ssl_.get()) || comes(socket_, POLLIN, longest);
}

void Connection::deliver(const Delivery& delivery)
{
    delivery_ = delivery;
    bodyBytesSent_ = 0;
    stage_ = Stage::head;
}

bool Connection::is_readable() const
{
    return SSL_has_pending(ssl_.get()) || comes(socket_, POLLIN, std::chrono::seconds(5));
}

bool Connection::is_writable() const
{
    return stage_ != Stage::ended && comes(socket_, POLLOUT, std::chrono::seconds(5));
}

ssize_t Connection::read(char* data, size_t size)
{
    size_t count = 0;
    return SSL_read_ex(ssl_.get(), data, size, &count) == 1 ? static_cast<ssize_t>(count) : -1;
}

ssize_t Connection::write(const char* data, size_t size)
{
    switch (stage_) {
    case Stage::beforeAnswer: return writeAll(data, size) ? static_cast<ssize_t>(size) : end();
    case Stage::head: return writeHead(data, size);
    case Stage::body: return writeBody(data, size);
    case Stage::ended: break;
    }
    return -1;
}

/// The server writes the status and the headers as one piece.
ssize_t Connection::writeHead(const char* data, size_t size)
{
    if (!pause(delivery_.delay)) return end();
    switch (delivery_.ending) {
    case Ending::closedBeforeFirstByte: return end();
    case Ending::hanging:
        while (pause(std::chrono::hours(1))) {}
        return end();
    case Ending::notHttp: {
        const std::string_view text = "220 mail.example ESMTP\r\n";
        writeAll(text.data(), text.size());
        return end();
    }
    case Ending::whole:
    case Ending::truncated:
    case Ending::reset: break;
    }
    if (!writeAll(data, size)) return end();
    stage_ = Stage::body;
    return static_cast<ssize_t>(size);
}

ssize_t Connection::writeBody(const char* data, size_t size)
{
    size_t sent = 0;
    while (sent < size) {
        std::uint64_t count = size - sent;
        if (delivery_.dripPause.count() > 0) {
            if (bodyBytesSent_ > 0 && bodyBytesSent_ % delivery_.dripBytes == 0 && !pause(delivery_.dripPause))
                return end();
            count = std::min(count, delivery_.dripBytes - bodyBytesSent_ % delivery_.dripBytes);
        }
        if (delivery_.ending != Ending::whole) count = std::min(count, delivery_.bodyBytes - bodyBytesSent_);
        if (count == 0) {
            isReset_ = delivery_.ending == Ending::reset;
            return end();
        }
        if (!writeAll(data + sent, count)) return end();
        sent += count;
        bodyBytesSent_ += count;
    }
    return static_cast<ssize_t>(size);
}

bool Connection::writeAll(const char* data, size_t size)
{
    size_t count = 0;
    return SSL_write_ex(ssl_.get(), data, size, &count) == 1;
}

/// Lets time pass; false if the connection ended meanwhile.
bool Connection::pause(std::chrono::milliseconds time)
{
    return time.count() == 0 || !comes(socket_, POLLRDHUP, time);
}

ssize_t Connection::end()
{
    stage_ = Stage::ended;
    return -1;
}

void Connection::get_remote_ip_and_port(std::string& address, int& port) const
{
    setAddress(::getpeername, socket_, address, port);
}

void Connection::get_local_ip_and_port(std::string& address, int& port) const
{
    setAddress(::getsockname, socket_, address, port);
}

}  // namespace larkspan::simulator
