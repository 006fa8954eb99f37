#pragma once

#include <curl/curl.h>
#include <openssl/ssl.h>

#include <cstdint>
#include <memory>

namespace larkspan::adapters {

/// The TLS session of a transfer, kept so that it can be asked after libcurl has released it.
class TlsSession {
public:
    TlsSession() = default;

    /// `transfer` must be receiving.
    explicit TlsSession(CURL* transfer);

    /// The number of bytes received and sent on the connection of `transfer`, including the handshake.
    static std::uint64_t bytesMoved(CURL* transfer);

    /// Whether bytes that have been received on the connection of `transfer` have not been read.
    static bool hasSomethingUnread(CURL* transfer);

    /// Whether the peer has announced the end of the session. libcurl accepts the plain end of the stream instead, with
    /// which anyone on the way could cut an answer short.
    bool isClosedByPeer() const;

    /// Makes the sessions of `context` record what `isClosedByPeer` returns.
    static void observe(SSL_CTX* context);

private:
    struct Release {
        void operator()(SSL* session) const { SSL_free(session); }
    };

    std::unique_ptr<SSL, Release> session_;
};

}  // namespace larkspan::adapters
