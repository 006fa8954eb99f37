#pragma once

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <chrono>
#include <memory>
#include <string>

namespace larkspan::adapters {

namespace detail {

struct OpenSslRelease {
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
    void operator()(X509* certificate) const { X509_free(certificate); }
};

}  // namespace detail

using PrivateKey = std::unique_ptr<EVP_PKEY, detail::OpenSslRelease>;
using CertificateHandle = std::unique_ptr<X509, detail::OpenSslRelease>;

/// A server's certificate and key.
struct Identity {
    PrivateKey key;
    CertificateHandle certificate;
};

struct CertificateTerms {
    /// Whether the key is as short as was usual in the 1990s.
    bool hasWeakKey = false;
    std::string subjectAlternativeName = "IP:127.0.0.1,DNS:localhost";
    std::chrono::seconds validFrom = -std::chrono::hours(1);
    std::chrono::seconds validUntil = std::chrono::hours(1);
};

/// A private authority, created for each run of the tests, with its bundle in a file.
class Authority {
public:
    explicit Authority(const char* name = "Authority of the tests");
    ~Authority();
    Authority(const Authority&) = delete;
    Authority& operator=(const Authority&) = delete;

    /// The path of a bundle that trusts this authority.
    const std::string& bundle() const { return bundle_; }

    Identity issue(const CertificateTerms& terms = {}) const;

private:
    Identity self_;
    std::string bundle_;
};

}  // namespace larkspan::adapters
