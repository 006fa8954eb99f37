#include "server/Certificate.h"

#include <openssl/bn.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

namespace larkspan::simulator {

namespace {

using BigNumberPointer = std::unique_ptr<BIGNUM, OpenSslFree<BN_free>>;
using ExtensionPointer = std::unique_ptr<X509_EXTENSION, OpenSslFree<X509_EXTENSION_free>>;

Identity blank(const std::string& commonName, Validity validity)
{
    Identity identity{X509Pointer(X509_new()), KeyPointer(EVP_EC_gen("P-256"))};
    requireSuccess(identity.certificate && identity.key, "make a key");
    auto* certificate = identity.certificate.get();

    constexpr int serialBits = 120;
    const BigNumberPointer serial(BN_new());
    requireSuccess(serial && BN_rand(serial.get(), serialBits, BN_RAND_TOP_ONE, BN_RAND_BOTTOM_ANY) == 1
            && BN_to_ASN1_INTEGER(serial.get(), X509_get_serialNumber(certificate)),
        "make a serial number");

    constexpr long version3 = 2;
    const auto* name = reinterpret_cast<const unsigned char*>(commonName.c_str());
    requireSuccess(X509_set_version(certificate, version3) == 1
            && X509_gmtime_adj(X509_getm_notBefore(certificate), validity.from.count())
            && X509_gmtime_adj(X509_getm_notAfter(certificate), validity.until.count())
            && X509_set_pubkey(certificate, identity.key.get()) == 1
            && X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate), "CN", MBSTRING_UTF8, name, -1, -1, 0)
                == 1,
        "make a certificate");
    return identity;
}

void extend(X509* certificate, X509* issuer, int extension, const std::string& value)
{
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    const ExtensionPointer made(X509V3_EXT_conf_nid(nullptr, &context, extension, value.c_str()));
    requireSuccess(made && X509_add_ext(certificate, made.get(), -1) == 1, "extend a certificate");
}

void sign(X509* certificate, const X509* issuer, EVP_PKEY* key)
{
    requireSuccess(X509_set_issuer_name(certificate, X509_get_subject_name(issuer)) == 1
            && X509_sign(certificate, key, EVP_sha256()) != 0,
        "sign a certificate");
}

}  // namespace

Identity makeAuthority(const std::string& name)
{
    auto authority = blank(name, {-std::chrono::years(2), std::chrono::years(10)});
    auto* certificate = authority.certificate.get();
    extend(certificate, certificate, NID_basic_constraints, "critical,CA:TRUE");
    extend(certificate, certificate, NID_key_usage, "critical,keyCertSign,cRLSign");
    extend(certificate, certificate, NID_subject_key_identifier, "hash");
    sign(certificate, certificate, authority.key.get());
    return authority;
}

Identity issueServerIdentity(const Identity& authority, const std::string& subjectAltName, Validity validity)
{
    auto identity = blank("larkspan-simulator", validity);
    auto* certificate = identity.certificate.get();
    auto* issuer = authority.certificate.get();
    extend(certificate, issuer, NID_basic_constraints, "critical,CA:FALSE");
    extend(certificate, issuer, NID_key_usage, "critical,digitalSignature");
    extend(certificate, issuer, NID_ext_key_usage, "serverAuth");
    extend(certificate, issuer, NID_subject_key_identifier, "hash");
    extend(certificate, issuer, NID_authority_key_identifier, "keyid");
    extend(certificate, issuer, NID_subject_alt_name, subjectAltName);
    sign(certificate, issuer, authority.key.get());
    return identity;
}

}  // namespace larkspan::simulator
