#include "FaultServer.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <pthread.h>
#include <sys/socket.h>
#include <unistd.h>

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
        if (socket < 0) continue;
        const int atOnce = 1;
        setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &atOnce, sizeof atOnce);
        const int number = ++connections_;
        auto& peer = peers_.emplace_back();
        peer.conversation = std::make_unique<Conversation>(socket, SSL_new(context_.get()));
        peer.thread = std::jthread([this, &peer, number] { serve(peer, number); });
    }
}

void FaultServer::serve(Peer& peer, int number)
{
    ignoreBrokenPipes();
    auto& conversation = *peer.conversation;
    if (isMute_) return conversation.ignore();
    if (!conversation.shakeHands()) return conversation.cut();
    ++handshakes_;
    while (auto request = conversation.read()) {
        request->connection = number;
        record(*request);
        script_(conversation, *request);
    }
    conversation.close();
}

void FaultServer::record(const ReceivedRequest& request)
{
    const std::scoped_lock lock(mutex_);
    requests_.push_back(request);
}

}  // namespace larkspan::adapters
