#include "Authority.h"

#include <openssl/pem.h>
#include <openssl/x509v3.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace larkspan::adapters {

namespace {

constexpr unsigned weakKeyBits = 1024;

PrivateKey newKey()
{
    return PrivateKey(EVP_EC_gen("P-256"));
}

void addExtension(X509* certificate, X509* issuer, int which, const std::string& value)
{
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    auto* extension = X509V3_EXT_conf_nid(nullptr, &context, which, value.c_str());
    if (!extension) throw std::logic_error("not an extension: " + value);
    X509_add_ext(certificate, extension, -1);
    X509_EXTENSION_free(extension);
}

CertificateHandle newCertificate(EVP_PKEY* key, const char* name, const CertificateTerms& terms)
{
    static std::atomic<long> serial{1};
    CertificateHandle certificate(X509_new());
    X509_set_version(certificate.get(), X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), serial++);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), terms.validFrom.count());
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), terms.validUntil.count());
    X509_set_pubkey(certificate.get(), key);
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate.get()), "CN", MBSTRING_ASC,
        reinterpret_cast<const unsigned char*>(name), -1, -1, 0);
    return certificate;
}

void sign(X509* certificate, const X509* issuer, EVP_PKEY* key)
{
    X509_set_issuer_name(certificate, X509_get_subject_name(issuer));
    X509_sign(certificate, key, EVP_sha256());
}

std::string writeBundle(X509* certificate)
{
    std::string path = "/tmp/authority-XXXXXX";
    const int descriptor = mkstemp(path.data());
    auto* file = fdopen(descriptor, "w");
    if (!file) throw std::runtime_error("cannot write " + path);
    PEM_write_X509(file, certificate);
    std::fclose(file);
    return path;
}

}  // namespace

Authority::Authority(const char* name)
{
    self_.key = newKey();
    self_.certificate = newCertificate(self_.key.get(), name, {});
    auto* own = self_.certificate.get();
    addExtension(own, own, NID_basic_constraints, "critical,CA:TRUE");
    addExtension(own, own, NID_key_usage, "critical,keyCertSign");
    sign(own, own, self_.key.get());
    bundle_ = writeBundle(own);
}

Authority::~Authority()
{
    std::remove(bundle_.c_str());
}

Identity Authority::issue(const CertificateTerms& terms) const
{
    Identity identity;
    identity.key = terms.hasWeakKey ? PrivateKey(EVP_RSA_gen(weakKeyBits)) : newKey();
    identity.certificate = newCertificate(identity.key.get(), "Server of the tests", terms);
    auto* certificate = identity.certificate.get();
    addExtension(certificate, self_.certificate.get(), NID_subject_alt_name, terms.subjectAlternativeName);
    sign(certificate, self_.certificate.get(), self_.key.get());
    return identity;
}

}  // namespace larkspan::adapters
