#pragma once

#include <chrono>
#include <string>

#include "server/OpenSsl.h"

namespace larkspan::simulator {

/// A certificate and the key to it.
struct Identity {
    X509Pointer certificate;
    KeyPointer key;
};

/// When a certificate is valid, counted from now.
struct Validity {
    std::chrono::seconds from;
    std::chrono::seconds until;
};

/// An authority of its own making, good for ten years.
Identity makeAuthority(const std::string& name);

/// A server's certificate for `subjectAltName`, in OpenSSL's notation ("DNS:localhost,IP:127.0.0.1").
Identity issueServerIdentity(const Identity& authority, const std::string& subjectAltName, Validity validity);

}  // namespace larkspan::simulator
