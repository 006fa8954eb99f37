#pragma once

#include <curl/curl.h>

#include <string>

namespace larkspan::adapters {

/// The file of the authorities that this system trusts.
std::string systemCertificateBundle();

/// TLS 1.2 or later, with the peer verified against `bundle` and nothing else. Neither the environment nor OpenSSL's
/// configuration can weaken this or have the secrets written to a file.
void requireVerifiedTls(CURL* transfer, const std::string& bundle);

}  // namespace larkspan::adapters
