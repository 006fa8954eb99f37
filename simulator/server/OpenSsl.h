#pragma once

#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace larkspan::simulator {

/// Frees an object of OpenSSL.
template <auto Free>
struct OpenSslFree {
    template <typename Object>
    void operator()(Object* object) const
    {
        Free(object);
    }
};

using X509Pointer = std::unique_ptr<X509, OpenSslFree<X509_free>>;
using KeyPointer = std::unique_ptr<EVP_PKEY, OpenSslFree<EVP_PKEY_free>>;
using SslContextPointer = std::unique_ptr<SSL_CTX, OpenSslFree<SSL_CTX_free>>;
using SslPointer = std::unique_ptr<SSL, OpenSslFree<SSL_free>>;

/// Throws if OpenSSL could not do `what`.
inline void requireSuccess(bool succeeded, const char* what)
{
    if (!succeeded) throw std::runtime_error(std::string("OpenSSL could not ") + what);
}

}  // namespace larkspan::simulator
