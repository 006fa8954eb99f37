#pragma once

#include <memory>

#include "server/ServerCertificates.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// The service and its control over HTTPS on 127.0.0.1.
class HttpsServer {
public:
    /// Takes connections at once; port 0 means any that is free. Throws std::runtime_error with a sentence.
    /// The service and the certificates outlive the server.
    HttpsServer(Service& service, ServerCertificates& certificates, int port);

    /// Ends all connections, whatever they wait for.
    ~HttpsServer();

    int port() const;

private:
    class Listener;

    std::unique_ptr<Listener> listener_;
};

}  // namespace larkspan::simulator
