#pragma once

#include <array>
#include <atomic>
#include <optional>
#include <string>
#include <string_view>

#include "server/AuthorityStore.h"

namespace larkspan::simulator {

/// What the server shows to who connects; all but the first are refused by a careful client.
enum class CertificateKind { valid, expired, wrongName, untrusted };

/// "valid", "expired", "wrong-name", "untrusted".
std::optional<CertificateKind> certificateKind(std::string_view name);

/// One TLS context for each kind. The kind in use may change at any time, from any thread.
class ServerCertificates {
public:
    /// The valid certificate is good for this machine and for `host`.
    ServerCertificates(const Identity& authority, CertificateKind kind, const std::string& host = "localhost");

    void use(CertificateKind kind) { kind_ = kind; }

    /// For a new connection.
    SSL_CTX* context() const { return contexts_[static_cast<std::size_t>(kind_.load())].get(); }

private:
    std::array<SslContextPointer, 4> contexts_;
    std::atomic<CertificateKind> kind_;
};

}  // namespace larkspan::simulator
