#pragma once

#include <array>
#include <atomic>
#include <optional>
#include <string>
#include <string_view>

#include "server/AuthorityStore.h"

namespace larkspan::simulator {

/// The kinds of certificate that the server presents; careful clients refuse all but the first.
enum class CertificateKind { valid, expired, wrongName, untrusted };

/// The kind with this name: "valid", "expired", "wrong-name" or "untrusted".
std::optional<CertificateKind> certificateKind(std::string_view name);

/// A TLS context for each kind. The kind in use may be changed at any time from any thread.
class ServerCertificates {
public:
    /// The valid certificate names this machine and `host`.
    ServerCertificates(const Identity& authority, CertificateKind kind, const std::string& host = "localhost");

    void use(CertificateKind kind) { kind_ = kind; }

    /// The context for a new connection.
    SSL_CTX* context() const { return contexts_[static_cast<std::size_t>(kind_.load())].get(); }

private:
    std::array<SslContextPointer, 4> contexts_;
    std::atomic<CertificateKind> kind_;
};

}  // namespace larkspan::simulator
