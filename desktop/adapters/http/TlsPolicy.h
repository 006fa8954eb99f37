#pragma once

#include <curl/curl.h>

#include <string>

namespace larkspan::adapters {

/// The file of the authorities that this system trusts.
std::string systemCertificateBundle();

/// Keeps OpenSSL from reading its configuration file, which `OPENSSL_CONF` may name and which may load any module into
/// the process. What the file of the distribution asks for, TLS 1.2 and level 2, is asked for here anyway. Only the
/// first use of OpenSSL in a process reads the file: call this before.
void ignoreTlsConfiguration();

/// TLS 1.2 or later, with the peer verified against `bundle` and nothing else. Neither the environment nor OpenSSL's
/// configuration can weaken this or have the secrets written to a file.
void requireVerifiedTls(CURL* transfer, const std::string& bundle);

}  // namespace larkspan::adapters
