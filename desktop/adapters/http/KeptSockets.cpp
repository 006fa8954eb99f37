#include "adapters/http/KeptSockets.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>

namespace larkspan::adapters {

namespace {

/// 0 for what is no socket of a connection.
int localPortOf(int socket)
{
    sockaddr_storage address{};
    socklen_t size = sizeof address;
    if (getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size) != 0) return 0;
    if (address.ss_family == AF_INET) return ntohs(reinterpret_cast<const sockaddr_in&>(address).sin_port);
    if (address.ss_family == AF_INET6) return ntohs(reinterpret_cast<const sockaddr_in6&>(address).sin6_port);
    return 0;
}

}  // namespace

bool KeptSockets::hasSomethingUnread(int localPort)
{
    std::erase_if(sockets_, [](int socket) { return localPortOf(socket) == 0; });
    return std::ranges::any_of(sockets_, [localPort](int socket) {
        pollfd readable{socket, POLLIN, 0};
        return localPortOf(socket) == localPort && poll(&readable, 1, 0) != 0;
    });
}

}  // namespace larkspan::adapters
