#include "server/HttpsServer.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/thread_pool.hpp>

#include <csignal>
#include <mutex>
#include <set>
#include <stdexcept>

#include "server/Connection.h"
#include "server/Control.h"
#include "server/ReplyDelivery.h"
#include "server/RequestReader.h"

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;
using boost::asio::ip::tcp;

constexpr auto idleTime = 30s;

/// For the calling thread, since clients may disconnect at any time.
void ignoreBrokenPipes()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

tcp::acceptor acceptorOn(int port, boost::asio::thread_pool& threads)
{
    try {
        return {threads, {boost::asio::ip::address_v4::loopback(), static_cast<std::uint16_t>(port)}};
    } catch (const boost::system::system_error&) {
        throw std::runtime_error("Port " + std::to_string(port) + " on 127.0.0.1 cannot be used.");
    }
}

}  // namespace

/// Accepts connections and serves each in its own thread.
class HttpsServer::Listener {
public:
    Listener(Service& service, ServerCertificates& certificates, int port)
        : service_(service)
        , certificates_(certificates)
        , control_(service, certificates)
        , acceptor_(acceptorOn(port, threads_))
    {
        acceptNext();
    }

    ~Listener()
    {
        endConnections();
        threads_.stop();
        threads_.join();
    }

    int port() const { return acceptor_.local_endpoint().port(); }

private:
    void acceptNext()
    {
        acceptor_.async_accept([this](const boost::system::error_code& error, tcp::socket socket) {
            acceptNext();
            if (error) return;
            socket.set_option(tcp::no_delay(true));
            serve(socket.release());
        });
    }

    void serve(int socket)
    {
        ignoreBrokenPipes();
        Connection connection(socket, certificates_.context());
        if (!enter(socket)) return;
        if (connection.accept()) answerRequests(connection);
        leave(socket);
    }

    void answerRequests(Connection& connection)
    {
        RequestReader requests(connection);
        while (const auto request = requests.next(idleTime)) {
            auto reply = Control::isMeant(*request) ? control_.answer(*request) : service_.answer(*request);
            if (!deliver(std::move(reply), *request, connection) || !requests.isKept()) return;
        }
    }

    /// Wakes every thread that waits for a client.
    void endConnections()
    {
        const std::scoped_lock lock(mutex_);
        isEnding_ = true;
        for (const auto socket : open_) ::shutdown(socket, SHUT_RDWR);
    }

    bool enter(int socket)
    {
        const std::scoped_lock lock(mutex_);
        if (!isEnding_) open_.insert(socket);
        return !isEnding_;
    }

    void leave(int socket)
    {
        const std::scoped_lock lock(mutex_);
        open_.erase(socket);
    }

    Service& service_;
    ServerCertificates& certificates_;
    Control control_;
    std::mutex mutex_;
    std::set<int> open_;
    bool isEnding_ = false;
    // One for each connection at a time: a hanging or idle connection keeps its thread, and the control must not wait
    // for it.
    boost::asio::thread_pool threads_{64};
    tcp::acceptor acceptor_;
};

HttpsServer::HttpsServer(Service& service, ServerCertificates& certificates, int port)
    : listener_(std::make_unique<Listener>(service, certificates, port))
{
}

HttpsServer::~HttpsServer() = default;

int HttpsServer::port() const
{
    return listener_->port();
}

}  // namespace larkspan::simulator
