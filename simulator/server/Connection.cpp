#include "server/Connection.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

namespace larkspan::simulator {

namespace {

/// Whether one of `events` occurs within the time; an error counts as one.
bool comes(int socket, short events, std::chrono::milliseconds within)
{
    pollfd watched{socket, events, 0};
    const auto longest = std::min<std::chrono::milliseconds::rep>(within.count(), std::numeric_limits<int>::max());
    return ::poll(&watched, 1, static_cast<int>(longest)) > 0;
}

}  // namespace

Connection::Connection(int socket, SSL_CTX* context)
    : socket_(socket)
    , ssl_(SSL_new(context))
{
    requireSuccess(ssl_ && SSL_set_fd(ssl_.get(), socket) == 1, "take a connection");
}

Connection::~Connection()
{
    if (ending_ == Ending::inOrder) SSL_shutdown(ssl_.get());
    if (ending_ == Ending::reset) {
        const linger atOnce{1, 0};
        ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    }
    ::close(socket_);
}

bool Connection::accept()
{
    if (SSL_accept(ssl_.get()) == 1) return true;
    endAbruptly();
    return false;
}

bool Connection::hasBytes(std::chrono::milliseconds within) const
{
    return SSL_has_pending(ssl_.get()) || comes(socket_, POLLIN, within);
}

std::size_t Connection::read(void* data, std::size_t size)
{
    std::size_t count = 0;
    return SSL_read_ex(ssl_.get(), data, size, &count) == 1 ? count : 0;
}

bool Connection::write(std::string_view bytes)
{
    std::size_t count = 0;
    return bytes.empty() || SSL_write_ex(ssl_.get(), bytes.data(), bytes.size(), &count) == 1;
}

bool Connection::pause(std::chrono::milliseconds time) const
{
    return time.count() == 0 || !comes(socket_, POLLRDHUP, time);
}

}  // namespace larkspan::simulator
