#pragma once

#include <memory>

#include "server/ServerCertificates.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// The service and its control over HTTPS on 127.0.0.1.
class HttpsServer {
public:
    /// Accepts connections at once; port 0 means any free one. Throws std::runtime_error with a sentence. The service
    /// and the certificates must outlive the server.
    HttpsServer(Service& service, ServerCertificates& certificates, int port);

    /// Ends all connections, also those that wait.
    ~HttpsServer();

    int port() const;

private:
    class Listener;

    std::unique_ptr<Listener> listener_;
};

}  // namespace larkspan::simulator
