#include "stage/Authorities.h"
#include "stage/Endings.h"

namespace larkspan::campaign {

using adapters::FaultServer;
using namespace std::chrono_literals;

namespace {

using Identity = std::shared_ptr<const adapters::Identity>;

Identity issued(const adapters::CertificateTerms& terms, const adapters::Authority& by = authority())
{
    return std::make_shared<const adapters::Identity>(by.issue(terms));
}

Fault shown(const std::string& name, const std::string& sentence, Identity shownIdentity,
    FaultServer::TlsVersions versions = {TLS1_2_VERSION, TLS1_3_VERSION})
{
    Fault fault{name, endsWith(sentence)};
    fault.begin = [shownIdentity = std::move(shownIdentity), versions](
                      FaultServer& server) { server.present(*shownIdentity, versions); };
    fault.end = [](FaultServer& server) { server.present(identity(), {TLS1_2_VERSION, TLS1_3_VERSION}); };
    return fault;
}

}  // namespace

std::vector<Fault> certificateFaults()
{
    static const adapters::Authority stranger("A stranger");
    static const adapters::Authority impostor;
    const auto good = issued({});
    return {
        shown("an expired certificate", untrusted, issued({.validFrom = -2h, .validUntil = -1h})),
        shown("a certificate of tomorrow", untrusted, issued({.validFrom = 24h, .validUntil = 48h})),
        shown("a certificate for another name", untrusted, issued({.subjectAlternativeName = "DNS:elsewhere.test"})),
        shown("a certificate for another address", untrusted, issued({.subjectAlternativeName = "IP:127.0.0.2"})),
        shown("a certificate for the address as a name", untrusted,
            issued({.subjectAlternativeName = "DNS:127.0.0.2,DNS:*.0.0.1"})),
        shown("a certificate with a weak key", untrusted, issued({.hasWeakKey = true})),
        shown("a certificate of a stranger", untrusted, issued({}, stranger)),
        shown("a certificate of one who bears the authority's name", insecure, issued({}, impostor)),
        shown("TLS 1.0", insecure, good, {TLS1_VERSION, TLS1_VERSION}),
        shown("TLS 1.1", insecure, good, {TLS1_1_VERSION, TLS1_1_VERSION}),
        // Nothing is wrong with these.
        shown("TLS 1.2 only", "", good, {TLS1_2_VERSION, TLS1_2_VERSION}),
        shown("TLS 1.3 only", "", good, {TLS1_3_VERSION, TLS1_3_VERSION}),
    };
}

}  // namespace larkspan::campaign
