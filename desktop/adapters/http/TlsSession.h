#pragma once

#include <curl/curl.h>
#include <openssl/ssl.h>

#include <cstdint>
#include <memory>

namespace larkspan::adapters {

/// The TLS session that a transfer runs over, kept for what it can tell after libcurl has let go of it.
class TlsSession {
public:
    TlsSession() = default;

    /// Of a transfer that is receiving.
    explicit TlsSession(CURL* transfer);

    /// How many bytes have come and gone on the connection of `transfer`, the handshake's included.
    static std::uint64_t bytesMoved(CURL* transfer);

    /// Whether the peer has said that nothing follows. libcurl takes the end of the stream for it, with which anyone
    /// on the way could cut an answer short.
    bool isClosedByPeer() const;

    /// Has the sessions of `context` note what `isClosedByPeer` tells.
    static void observe(SSL_CTX* context);

private:
    struct Release {
        void operator()(SSL* session) const { SSL_free(session); }
    };

    std::unique_ptr<SSL, Release> session_;
};

}  // namespace larkspan::adapters
