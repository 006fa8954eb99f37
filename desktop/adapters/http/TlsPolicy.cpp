#include "adapters/http/TlsPolicy.h"

#include <openssl/crypto.h>
#include <openssl/ssl.h>

#include <algorithm>
#include <chrono>

#include "adapters/http/CurlHandles.h"
#include "adapters/http/TlsSession.h"
#include "support/FatalError.h"

namespace larkspan::adapters {

namespace {

constexpr int lowestSecurityLevel = 2;

CURLcode prepareContext(CURL*, void* tls, void*)
{
    auto* context = static_cast<SSL_CTX*>(tls);
    // A process that used OpenSSL before has read its configuration, which may allow weak keys; SSLKEYLOGFILE makes
    // OpenSSL write the secrets of each session to a file.
    SSL_CTX_set_security_level(context, std::max(SSL_CTX_get_security_level(context), lowestSecurityLevel));
    SSL_CTX_clear_options(context, SSL_OP_LEGACY_SERVER_CONNECT | SSL_OP_ALLOW_UNSAFE_LEGACY_RENEGOTIATION);
    SSL_CTX_set_keylog_callback(context, nullptr);
    TlsSession::observe(context);
    return CURLE_OK;
}

}  // namespace

std::string systemCertificateBundle()
{
    const auto* bundle = curl_version_info(CURLVERSION_NOW)->cainfo;
    return bundle ? bundle : "/etc/ssl/certs/ca-certificates.crt";
}

void ignoreTlsConfiguration()
{
    if (OPENSSL_init_crypto(OPENSSL_INIT_NO_LOAD_CONFIG, nullptr) != 1)
        support::fatalError("OpenSSL cannot be started");
}

void requireVerifiedTls(CURL* transfer, const std::string& bundle)
{
    constexpr std::chrono::seconds storeLifetime = std::chrono::hours(1);

    setOption(transfer, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    setOption(transfer, CURLOPT_SSL_VERIFYPEER, 1L);
    setOption(transfer, CURLOPT_SSL_VERIFYHOST, 2L);
    setOption(transfer, CURLOPT_SSL_CTX_FUNCTION, &prepareContext);
    // libcurl keeps the parsed store between connections only if it has no directory to search as well.
    setOption(transfer, CURLOPT_CAINFO, bundle.c_str());
    setOption(transfer, CURLOPT_CAPATH, nullptr);
    setOption(transfer, CURLOPT_CA_CACHE_TIMEOUT, static_cast<long>(storeLifetime.count()));

    // The same for a proxy that is reached over TLS.
    setOption(transfer, CURLOPT_PROXY_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    setOption(transfer, CURLOPT_PROXY_SSL_VERIFYPEER, 1L);
    setOption(transfer, CURLOPT_PROXY_SSL_VERIFYHOST, 2L);
    setOption(transfer, CURLOPT_PROXY_CAINFO, bundle.c_str());
    setOption(transfer, CURLOPT_PROXY_CAPATH, nullptr);
}

}  // namespace larkspan::adapters
