#include "server/HttpsServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>

#include "HttpsClient.h"
#include "Samples.h"
#include "TemporaryDirectory.h"
#include "json/Json.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;
using samples::pagesPath;
using samples::request;

class Https : public testing::Test {
protected:
    HttpsResult fetchPages() { return client_.send(request(pagesPath)); }

    std::string base() const { return "https://localhost:" + std::to_string(server_->port()); }

    TemporaryDirectory directory_;
    Service service_{samples::account()};
    AuthorityStore store_{directory_.path()};
    ServerCertificates certificates_{store_.authority(), CertificateKind::valid};
    std::optional<HttpsServer> server_{std::in_place, service_, certificates_, 0};
    HttpsClient client_{base(), store_.certificateFile()};
};

TEST_F(Https, ServesTheAccountUnderACertificateOfItsAuthority)
{
    const auto result = fetchPages();

    EXPECT_EQ(result.code, CURLE_OK);
    EXPECT_EQ(result.status, 200);
    EXPECT_THAT(result.head, testing::HasSubstr("Content-Type: application/json"));
    EXPECT_EQ(parsedJson(result.body).at("data").size(), 3u);
}

TEST_F(Https, RecordsARequestAsTheClientSentIt)
{
    client_.send(
        {"PATCH", pagesPath + "?ids=a,b%20c", {{"X-API-Key", "k"}, {"Content-Type", "application/json"}}, "{}"});

    const auto received = service_.received().at(0);
    EXPECT_EQ(received.method, "PATCH");
    EXPECT_EQ(received.target, pagesPath + "?ids=a,b%20c");
    EXPECT_EQ(received.body, "{}");
    EXPECT_EQ(received.header("X-API-Key"), "k");
    EXPECT_EQ(received.header("REMOTE_ADDR"), std::nullopt);
    EXPECT_EQ(received.header("Authorization"), std::nullopt);
}

TEST_F(Https, AnswersSeveralRequestsOnOneConnection)
{
    for (int count = 0; count < 10; ++count) EXPECT_EQ(fetchPages().status, 200);

    EXPECT_EQ(service_.received().size(), 10u);
}

TEST_F(Https, ShowsACertificateThatIsGoodForAFurtherHost)
{
    server_.reset();
    ServerCertificates named(store_.authority(), CertificateKind::valid, "further.localhost");
    server_.emplace(service_, named, 0);
    HttpsClient client("https://further.localhost:" + std::to_string(server_->port()), store_.certificateFile());

    EXPECT_EQ(client.send(request(pagesPath)).status, 200);
    server_.reset();
}

struct CertificateRow {
    CertificateKind kind;
    CURLcode code;
};

class HttpsCertificate : public Https, public testing::WithParamInterface<CertificateRow> {};

TEST_P(HttpsCertificate, IsTakenOnlyWhereItIsValid)
{
    certificates_.use(GetParam().kind);

    EXPECT_EQ(fetchPages().code, GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(EachKind, HttpsCertificate,
    testing::Values(CertificateRow{CertificateKind::valid, CURLE_OK},
        CertificateRow{CertificateKind::expired, CURLE_PEER_FAILED_VERIFICATION},
        CertificateRow{CertificateKind::wrongName, CURLE_PEER_FAILED_VERIFICATION},
        CertificateRow{CertificateKind::untrusted, CURLE_PEER_FAILED_VERIFICATION}));

enum class Outcome { whole, timedOut, connectionLost, notHttp, other };

/// Releases of libcurl differ in which ends of a connection they distinguish.
Outcome outcomeOf(CURLcode code)
{
    switch (code) {
    case CURLE_OK: return Outcome::whole;
    case CURLE_OPERATION_TIMEDOUT: return Outcome::timedOut;
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE: return Outcome::connectionLost;
    case CURLE_UNSUPPORTED_PROTOCOL: return Outcome::notHttp;
    default: return Outcome::other;
    }
}

struct WireFaultRow {
    std::string_view name;
    Fault fault;
    Outcome outcome;
    std::size_t bodyBytes;
};

class HttpsFault : public Https, public testing::WithParamInterface<WireFaultRow> {};

TEST_P(HttpsFault, HappensOnTheWireAndToOneRequest)
{
    service_.inject({GetParam().fault, pagesPath, {}, 1});

    const auto result = fetchPages();

    EXPECT_EQ(outcomeOf(result.code), GetParam().outcome) << curl_easy_strerror(result.code);
    EXPECT_EQ(result.body.size(), GetParam().bodyBytes);
    EXPECT_EQ(service_.received().size(), 1u);
    EXPECT_EQ(fetchPages().status, 200);
}

INSTANTIATE_TEST_SUITE_P(EachFault, HttpsFault,
    testing::Values(WireFaultRow{"Hang", fault::Hang{}, Outcome::timedOut, 0},
        WireFaultRow{"Reset", fault::Reset{100}, Outcome::connectionLost, 100},
        WireFaultRow{"Truncation", fault::Truncation{100}, Outcome::connectionLost, 100},
        WireFaultRow{"ClosedBeforeFirstByte", fault::ClosedBeforeFirstByte{}, Outcome::connectionLost, 0},
        WireFaultRow{"NotHttp", fault::NotHttp{}, Outcome::notHttp, 0},
        WireFaultRow{"EmptyBody", fault::Body{}, Outcome::whole, 0}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(Https, DripsABodyUntilTheClientLosesPatience)
{
    service_.inject({fault::Drip{1, 150ms}});

    const auto result = fetchPages();

    EXPECT_EQ(result.code, CURLE_OPERATION_TIMEDOUT);
    EXPECT_THAT(result.body.size(), testing::AllOf(testing::Gt(0u), testing::Lt(20u)));
}

TEST_F(Https, SendsAHugeBodyWhole)
{
    service_.inject({fault::HugeBody{}});
    client_.setPatience(1min);

    EXPECT_EQ(fetchPages().body.size(), 200'000'000u);
}

TEST_F(Https, PacksAHugeBodyForAClientThatTakesIt)
{
    service_.inject({fault::HugeBody{50'000'000, true}});
    auto asked = request(pagesPath);
    asked.headers.emplace_back("Accept-Encoding", "gzip");

    const auto result = client_.send(asked);

    EXPECT_THAT(result.head, testing::HasSubstr("Content-Encoding: gzip"));
    EXPECT_LT(result.body.size(), 1'000'000u);
    EXPECT_TRUE(result.body.starts_with("\x1f\x8b"));
}

TEST_F(Https, HidesTheLengthOfATruncatedBody)
{
    service_.inject({fault::Truncation{50, true}});

    const auto result = fetchPages();

    EXPECT_THAT(result.head, testing::Not(testing::HasSubstr("Content-Length")));
    EXPECT_EQ(result.body.size(), 50u);
}

TEST_F(Https, EndsWhileAClientWaitsForAnAnswer)
{
    service_.inject({fault::Hang{}});
    auto waiting = std::async(std::launch::async, [this] { return fetchPages(); });
    while (service_.received().empty()) std::this_thread::yield();

    const auto before = std::chrono::steady_clock::now();
    server_.reset();

    EXPECT_LT(std::chrono::steady_clock::now() - before, 1s);
    EXPECT_EQ(outcomeOf(waiting.get().code), Outcome::connectionLost);
}

TEST_F(Https, RefusesAPortThatIsTaken)
{
    EXPECT_THROW(HttpsServer(service_, certificates_, server_->port()), std::runtime_error);
}

TEST_F(Https, TakesItsPortAgainAfterARestart)
{
    fetchPages();
    const int port = server_->port();
    server_.reset();

    server_.emplace(service_, certificates_, port);

    EXPECT_EQ(fetchPages().status, 200);
}

TEST_F(Https, ObeysItsControlWithoutAKeyAndWithoutARecordOfIt)
{
    EXPECT_EQ(client_.order("POST", "/simulator/faults", R"({"fault":"status","code":503})").status, 204);
    EXPECT_EQ(fetchPages().status, 503);

    const auto requests = parsedJson(client_.order("GET", "/simulator/requests").body);
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requests.at(0).at("target"), Json(pagesPath));
    EXPECT_EQ(requests.at(0).at("headers").at("X-API-Key"), Json(samples::key));
}

TEST_F(Https, ShowsAnotherCertificateWhenItsControlSaysSo)
{
    EXPECT_EQ(client_.order("PUT", "/simulator/certificate", R"({"certificate":"expired"})").status, 204);

    EXPECT_EQ(fetchPages().code, CURLE_PEER_FAILED_VERIFICATION);
}

TEST(AuthorityStore, KeepsItsAuthorityForTheNextStart)
{
    const TemporaryDirectory directory;
    const AuthorityStore first(directory.path() / "new");
    const AuthorityStore second(directory.path() / "new");

    EXPECT_EQ(X509_cmp(first.authority().certificate.get(), second.authority().certificate.get()), 0);
}

TEST(AuthorityStore, ShowsItsKeyToNobodyElse)
{
    const TemporaryDirectory directory;
    const AuthorityStore store(directory.path());

    const auto rights = std::filesystem::status(directory.path() / "authority-with-key.pem").permissions();
    EXPECT_EQ(rights, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST(AuthorityStore, OfAFileThatIsBrokenSaysSo)
{
    const TemporaryDirectory directory;
    {
        const AuthorityStore store(directory.path());
    }
    std::filesystem::resize_file(directory.path() / "authority-with-key.pem", 10);

    EXPECT_THROW(AuthorityStore(directory.path()), std::runtime_error);
}

}  // namespace
}  // namespace larkspan::simulator
