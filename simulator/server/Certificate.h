#pragma once

#include <chrono>
#include <string>

#include "server/OpenSsl.h"

namespace larkspan::simulator {

/// A certificate and its key.
struct Identity {
    X509Pointer certificate;
    KeyPointer key;
};

/// The validity of a certificate, counted from now.
struct Validity {
    std::chrono::seconds from;
    std::chrono::seconds until;
};

/// A self-signed authority, valid for ten years.
Identity makeAuthority(const std::string& name);

/// A server's certificate for `subjectAltName`, in OpenSSL's notation ("DNS:localhost,IP:127.0.0.1").
Identity issueServerIdentity(const Identity& authority, const std::string& subjectAltName, Validity validity);

}  // namespace larkspan::simulator
