#include "TunnelProxy.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <utility>

#include "LoopbackSocket.h"

namespace larkspan::adapters {

namespace {

std::string readHead(int client)
{
    std::string head;
    std::array<char, 1> byte;
    while (!head.ends_with("\r\n\r\n") && recv(client, byte.data(), 1, 0) == 1) head.push_back(byte.front());
    return head;
}

int portNamedIn(const std::string& head)
{
    const auto colon = head.find(':');
    return colon == std::string::npos ? 0 : std::atoi(head.c_str() + colon + 1);
}

bool forward(int from, int to)
{
    std::array<char, 16'384> bytes;
    const auto got = recv(from, bytes.data(), bytes.size(), 0);
    return got > 0 && ::send(to, bytes.data(), static_cast<std::size_t>(got), MSG_NOSIGNAL) == got;
}

void tunnel(int client, int server)
{
    std::array<pollfd, 2> ends{pollfd{client, POLLIN, 0}, pollfd{server, POLLIN, 0}};
    bool isOpen = true;
    while (isOpen && poll(ends.data(), ends.size(), -1) > 0) {
        if (ends[0].revents != 0) isOpen = forward(client, server);
        if (isOpen && ends[1].revents != 0) isOpen = forward(server, client);
    }
}

}  // namespace

TunnelProxy::TunnelProxy(std::string status)
    : status_(std::move(status))
    , listener_(listenOnLoopback())
    , port_(portOf(listener_))
    , acceptor_([this] { accept(); })
{
}

TunnelProxy::~TunnelProxy()
{
    isEnding_ = true;
    shutdown(listener_, SHUT_RDWR);
    acceptor_.join();
    for (const int socket : sockets_) shutdown(socket, SHUT_RDWR);
    tunnels_.clear();
    for (const int socket : sockets_) close(socket);
    close(listener_);
}

std::vector<std::string> TunnelProxy::heads() const
{
    const std::scoped_lock lock(mutex_);
    return heads_;
}

void TunnelProxy::accept()
{
    while (!isEnding_) {
        const int client = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (client < 0) continue;
        sockets_.push_back(client);
        tunnels_.emplace_back([this, client] { serve(client); });
    }
}

void TunnelProxy::serve(int client)
{
    const auto head = readHead(client);
    {
        const std::scoped_lock lock(mutex_);
        heads_.push_back(head);
    }
    const auto answer = "HTTP/1.1 " + status_ + "\r\n\r\n";
    ::send(client, answer.data(), answer.size(), MSG_NOSIGNAL);
    if (const int server = status_.starts_with("200") ? connectToLoopback(portNamedIn(head)) : -1; server >= 0) {
        tunnel(client, server);
        close(server);
    }
    shutdown(client, SHUT_RDWR);
}

}  // namespace larkspan::adapters
