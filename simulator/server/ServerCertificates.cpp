#include "server/ServerCertificates.h"

#include <algorithm>

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;

constexpr std::array<std::string_view, 4> names{"valid", "expired", "wrong-name", "untrusted"};

SslContextPointer contextFor(const Identity& identity)
{
    SslContextPointer context(SSL_CTX_new(TLS_server_method()));
    requireSuccess(context && SSL_CTX_set_min_proto_version(context.get(), TLS1_2_VERSION) == 1
            && SSL_CTX_use_certificate(context.get(), identity.certificate.get()) == 1
            && SSL_CTX_use_PrivateKey(context.get(), identity.key.get()) == 1,
        "set TLS up");
    return context;
}

}  // namespace

std::optional<CertificateKind> certificateKind(std::string_view name)
{
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) return std::nullopt;
    return static_cast<CertificateKind>(found - names.begin());
}

ServerCertificates::ServerCertificates(const Identity& authority, CertificateKind kind, const std::string& host)
    : kind_(kind)
{
    const std::string here = "DNS:localhost,IP:127.0.0.1,DNS:" + host;
    // A client whose clock is wrong by a year reaches it, too.
    const Validity now{-std::chrono::years(2), std::chrono::years(2)};
    const Validity past{-std::chrono::years(1), -24h};
    const auto stranger = makeAuthority("Nobody's authority");

    const auto put = [this](CertificateKind at, const Identity& identity) {
        contexts_[static_cast<std::size_t>(at)] = contextFor(identity);
    };
    put(CertificateKind::valid, issueServerIdentity(authority, here, now));
    put(CertificateKind::expired, issueServerIdentity(authority, here, past));
    put(CertificateKind::wrongName, issueServerIdentity(authority, "DNS:elsewhere.example", now));
    put(CertificateKind::untrusted, issueServerIdentity(stranger, here, now));
}

}  // namespace larkspan::simulator
