#include "LoopbackSocket.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>

namespace larkspan::adapters {

namespace {

sockaddr_in loopback(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<in_port_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

}  // namespace

int listenOnLoopback(int port)
{
    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int reuse = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &reuse, sizeof reuse);
    const auto address = loopback(port);
    const bool isListening = bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0
        && listen(listener, SOMAXCONN) == 0;
    if (!isListening) throw std::runtime_error("no port on loopback");
    return listener;
}

int portOf(int listener)
{
    sockaddr_in address{};
    socklen_t size = sizeof address;
    getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    return ntohs(address.sin_port);
}

int connectToLoopback(int port)
{
    const int made = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto address = loopback(port);
    if (connect(made, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return made;
    close(made);
    return -1;
}

}  // namespace larkspan::adapters
