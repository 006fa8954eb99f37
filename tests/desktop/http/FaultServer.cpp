#include "FaultServer.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <pthread.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <utility>

#include "LoopbackSocket.h"

namespace larkspan::adapters {

namespace {

SSL_CTX* newContext(const Identity& identity, FaultServer::TlsVersions versions)
{
    auto* context = SSL_CTX_new(TLS_server_method());
    // The library must allow weak keys and ciphers here, so that the client is the one to refuse them.
    SSL_CTX_set_security_level(context, 0);
    SSL_CTX_set_min_proto_version(context, versions.lowest);
    SSL_CTX_set_max_proto_version(context, versions.highest);
    SSL_CTX_use_certificate(context, identity.certificate.get());
    SSL_CTX_use_PrivateKey(context, identity.key.get());
    return context;
}

void ignoreBrokenPipes()
{
    sigset_t pipe;
    sigemptyset(&pipe);
    sigaddset(&pipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipe, nullptr);
}

}  // namespace

FaultServer::FaultServer(const Identity& identity, Script script, TlsVersions versions)
    : script_(std::move(script))
    , context_(newContext(identity, versions), &SSL_CTX_free)
    , listener_(listenOnLoopback())
    , port_(portOf(listener_))
    , acceptor_([this] { accept(); })
{
}

FaultServer::~FaultServer()
{
    isEnding_ = true;
    shutdown(listener_, SHUT_RDWR);
    acceptor_.join();
    ::close(listener_);
    for (auto& peer : peers_) peer.conversation->interrupt();
}

std::string FaultServer::url(const std::string& target) const
{
    return "https://127.0.0.1:" + std::to_string(port_) + target;
}

std::vector<ReceivedRequest> FaultServer::requests() const
{
    const std::scoped_lock lock(mutex_);
    return requests_;
}

void FaultServer::accept()
{
    while (!isEnding_) {
        const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            continue;
        }
        const int atOnce = 1;
        setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &atOnce, sizeof atOnce);
        const int number = ++connections_;
        auto& peer = peers_.emplace_back();
        {
            const std::scoped_lock lock(contextMutex_);
            peer.conversation = std::make_unique<Conversation>(socket, SSL_new(context_.get()));
        }
        peer.thread = std::jthread([this, &peer, number] { serve(peer, number); });
    }
}

void FaultServer::serve(Peer& peer, int number)
{
    ignoreBrokenPipes();
    auto& conversation = *peer.conversation;
    if (!shakeHands(conversation)) return;
    ++handshakes_;
    while (auto request = conversation.read()) {
        request->connection = number;
        record(*request);
        script_(conversation, *request);
    }
    conversation.close();
}

bool FaultServer::shakeHands(Conversation& conversation)
{
    switch (greeting_.load()) {
    case Greeting::silence: conversation.ignore(); return false;
    case Greeting::close: conversation.cut(); return false;
    case Greeting::reset:
        // At once, it may come before the client has noticed that it is connected, which is another fault.
        conversation.awaitFirstBytes();
        conversation.reset();
        return false;
    case Greeting::plainText:
        conversation.writeWithoutTls("HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n");
        conversation.cut();
        return false;
    case Greeting::handshake: break;
    }
    if (conversation.shakeHands()) return true;
    conversation.cut();
    return false;
}

void FaultServer::stopListening()
{
    shutdown(listener_, SHUT_RDWR);
}

void FaultServer::listenAgain()
{
    const int again = listenOnLoopback(port_);
    // The acceptor goes on with the same descriptor.
    dup2(again, listener_);
    ::close(again);
}

void FaultServer::present(const Identity& identity, TlsVersions versions)
{
    const std::scoped_lock lock(contextMutex_);
    context_.reset(newContext(identity, versions));
}

void FaultServer::record(const ReceivedRequest& request)
{
    const std::scoped_lock lock(mutex_);
    requests_.push_back(request);
}

}  // namespace larkspan::adapters
