#include "server/HttpsServer.h"

#include <httplib.h>

#include <mutex>
#include <set>
#include <stdexcept>

#include "server/Connection.h"
#include "server/Control.h"
#include "server/Packing.h"

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;

constexpr const char* loopback = "127.0.0.1";

Request received(const httplib::Request& from)
{
    Request request{from.method, from.target, {}, from.body};
    for (const auto& [name, value] : from.headers) {
        // The library adds these four of its own.
        if (name.starts_with("REMOTE_") || name.starts_with("LOCAL_")) continue;
        request.headers.emplace_back(name, value);
    }
    return request;
}

/// Writes the body and then the blanks, from `offset` on.
bool writePiece(const Reply& reply, std::size_t offset, std::size_t length, httplib::DataSink& sink)
{
    static const std::string blanks(65'536, ' ');
    if (offset < reply.body.size()) {
        return sink.write(reply.body.data() + offset, std::min(length, reply.body.size() - offset));
    }
    return sink.write(blanks.data(), std::min(length, blanks.size()));
}

void pack(Reply& reply)
{
    reply.body = packed(reply.body, reply.padding);
    reply.padding = 0;
    reply.headers.emplace_back("Content-Encoding", "gzip");
}

void respond(Reply reply, const Request& request, httplib::Response& response)
{
    if (reply.isPacked && request.header("Accept-Encoding").value_or("").find("gzip") != std::string_view::npos)
        pack(reply);

    response.status = reply.status;
    for (const auto& [name, value] : reply.headers) response.set_header(name, value);
    // A provider, for the library packs what it holds itself as it sees fit.
    const auto kept = std::make_shared<const Reply>(std::move(reply));
    if (kept->bodySize() == 0) {
        response.set_content(std::string(), kept->contentType);
    } else if (kept->delivery.hidesLength) {
        response.set_header("Connection", "close");
        response.set_content_provider(kept->contentType, [kept](std::size_t offset, httplib::DataSink& sink) {
            if (offset < kept->bodySize()) return writePiece(*kept, offset, kept->bodySize() - offset, sink);
            sink.done();
            return true;
        });
    } else {
        response.set_content_provider(kept->bodySize(), kept->contentType,
            [kept](std::size_t offset, std::size_t length, httplib::DataSink& sink) {
                return writePiece(*kept, offset, length, sink);
            });
    }
}

}  // namespace

/// The library's server with connections of our own under it, since a fault reaches down to the socket.
class HttpsServer::Listener final : public httplib::Server {
public:
    Listener(Service& service, ServerCertificates& certificates)
        : service_(service)
        , certificates_(certificates)
        , control_(service, certificates)
    {
        // Hanging requests and idle connections keep their thread, and none of them may keep the control waiting.
        constexpr std::size_t mostConnections = 64;
        new_task_queue = [] { return new httplib::ThreadPool(mostConnections); };
        // The library would share the port with whoever has it already.
        set_socket_options([](socket_t socket) {
            const int yes = 1;
            ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        });
        set_keep_alive_timeout(idleTime.count());
        set_keep_alive_max_count(1'000'000);
        set_read_timeout(30s);
        set_write_timeout(30s);
        set_tcp_nodelay(true);

        const auto handle
            = [this](const httplib::Request& request, httplib::Response& response) { serve(request, response); };
        const std::string anyPath = "[^]*";
        Get(anyPath, handle);
        Post(anyPath, handle);
        Put(anyPath, handle);
        Patch(anyPath, handle);
        Delete(anyPath, handle);
        Options(anyPath, handle);
    }

    /// Wakes every thread that waits for its client.
    void endConnections()
    {
        const std::scoped_lock lock(mutex_);
        isEnding_ = true;
        for (const auto socket : open_) ::shutdown(socket, SHUT_RDWR);
    }

private:
    static constexpr std::chrono::seconds idleTime{30};

    bool process_and_close_socket(socket_t socket) override
    {
        Connection connection(socket, certificates_.context());
        if (!enter(socket)) return false;
        const auto setUp = [&connection](httplib::Request& request) { request.ssl = connection.ssl(); };
        bool isClosed = !connection.accept();
        while (!isClosed && connection.waitForRequest(idleTime)) {
            if (!process_request(connection, false, isClosed, setUp)) break;
        }
        leave(socket);
        return true;
    }

    bool enter(socket_t socket)
    {
        const std::scoped_lock lock(mutex_);
        if (!isEnding_) open_.insert(socket);
        return !isEnding_;
    }

    void leave(socket_t socket)
    {
        const std::scoped_lock lock(mutex_);
        open_.erase(socket);
    }

    void serve(const httplib::Request& from, httplib::Response& response)
    {
        const auto request = received(from);
        auto reply = Control::isMeant(request) ? control_.answer(request) : service_.answer(request);
        Connection::of(from).deliver(reply.delivery);
        respond(std::move(reply), request, response);
    }

    Service& service_;
    ServerCertificates& certificates_;
    Control control_;
    std::mutex mutex_;
    std::set<socket_t> open_;
    bool isEnding_ = false;
};

HttpsServer::HttpsServer(Service& service, ServerCertificates& certificates, int port)
    : listener_(std::make_unique<Listener>(service, certificates))
{
    port_ = port;
    if (port == 0) {
        port_ = listener_->bind_to_any_port(loopback);
    } else if (!listener_->bind_to_port(loopback, port)) {
        port_ = -1;
    }
    if (port_ <= 0) throw std::runtime_error("Port " + std::to_string(port) + " on 127.0.0.1 cannot be used.");

    thread_ = std::jthread([listener = listener_.get()] { listener->listen_after_bind(); });
    // Until it listens it cannot be stopped.
    while (!listener_->is_running()) std::this_thread::yield();
}

HttpsServer::~HttpsServer()
{
    listener_->endConnections();
    listener_->stop();
}

}  // namespace larkspan::simulator
