#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "TransportTest.h"

namespace larkspan::adapters {
namespace {

using Code = URLError::Code;
using namespace std::chrono_literals;

const FaultServer::Script welcome = [](Conversation& peer, const auto&) { peer.answer("200 OK", "hello"); };

struct CertificateRow {
    std::string what;
    CertificateTerms terms;
    Result expected;

    friend void PrintTo(const CertificateRow& row, std::ostream* out) { *out << row.what; }
};

class EachCertificate : public Transport, public testing::WithParamInterface<CertificateRow> {};

TEST_P(EachCertificate, IsTrustedOnlyWhereItIsGoodAndForThisHost)
{
    FaultServer server(authority().issue(GetParam().terms), welcome);
    const auto result = send(get(server.url()));
    EXPECT_EQ(result.index(), GetParam().expected.index());
    if (const auto* code = std::get_if<Code>(&GetParam().expected)) {
        EXPECT_THAT(result, fails(*code));
        EXPECT_TRUE(server.requests().empty());
    }
}

INSTANTIATE_TEST_SUITE_P(Certificate, EachCertificate,
    testing::Values(CertificateRow{"good", {}, HttpResponse{}},
        CertificateRow{"expired", {.validFrom = -2h, .validUntil = -1h}, Code::serverCertificateUntrusted},
        CertificateRow{"of tomorrow", {.validFrom = 24h, .validUntil = 48h}, Code::serverCertificateUntrusted},
        CertificateRow{"of a weak key", {.hasWeakKey = true}, Code::serverCertificateUntrusted},
        CertificateRow{
            "of another name", {.subjectAlternativeName = "DNS:elsewhere.test"}, Code::serverCertificateUntrusted},
        CertificateRow{
            "of another address", {.subjectAlternativeName = "IP:127.0.0.2"}, Code::serverCertificateUntrusted}),
    [](const auto& row) {
        auto name = row.param.what;
        std::ranges::replace(name, ' ', '_');
        return name;
    });

TEST_F(Transport, ReportsACertificateOfAnUnknownAuthorityAsUntrusted)
{
    const Authority stranger("A stranger");
    FaultServer server(stranger.issue(), welcome);
    EXPECT_THAT(send(get(server.url())), fails(Code::serverCertificateUntrusted));
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(Transport, RefusesACertificateOfAnAuthorityThatBearsTheNameOfATrustedOne)
{
    const Authority impostor;
    FaultServer server(impostor.issue(), welcome);
    EXPECT_THAT(send(get(server.url())), fails(Code::secureConnectionFailed));
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(Transport, ReportsAServerOfTls11AsAFailureOfTheSecureConnection)
{
    FaultServer server(identity(), welcome, {TLS1_1_VERSION, TLS1_1_VERSION});
    EXPECT_THAT(send(get(server.url())), fails(Code::secureConnectionFailed));
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(Transport, SpeaksTls12)
{
    FaultServer server(identity(), welcome, {TLS1_2_VERSION, TLS1_2_VERSION});
    EXPECT_THAT(send(get(server.url())), answers(200));
}

TEST_F(Transport, TrustsNobodyWhereTheBundleIsMissing)
{
    settings.certificateBundle = "/nonexistent/bundle.pem";
    FaultServer server(identity(), welcome);
    EXPECT_THAT(send(get(server.url())), fails(Code::secureConnectionFailed));
    EXPECT_TRUE(server.requests().empty());
}

TEST(SystemCertificateBundle, IsAFileThatExists)
{
    EXPECT_TRUE(std::ifstream(systemCertificateBundle()).good()) << systemCertificateBundle();
}

/// A temporary directory, deleted with its content at the end.
class Scratch {
public:
    Scratch() { directory_ = mkdtemp(directory_.data()); }
    ~Scratch() { std::filesystem::remove_all(directory_); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    std::string path(const std::string& name) const { return directory_ + "/" + name; }

    std::string write(const std::string& name, const std::string& text) const
    {
        std::ofstream(path(name)) << text;
        return path(name);
    }

private:
    std::string directory_ = "/tmp/larkspan-tls-XXXXXX";
};

/// Runs one test of this program again, in a process with `variables` added to the environment.
int exitCodeOf(const std::string& test, const std::vector<std::string>& variables)
{
    const auto filter = "--gtest_filter=" + test;
    std::vector<const char*> arguments{
        "larkspan_http_tests", filter.c_str(), "--gtest_also_run_disabled_tests", "--gtest_brief=1", nullptr};
    std::vector<const char*> environment;
    for (const auto& variable : variables) environment.push_back(variable.c_str());
    for (auto** inherited = environ; *inherited; ++inherited) environment.push_back(*inherited);
    environment.push_back(nullptr);

    pid_t child = 0;
    const int failure = posix_spawn(&child, "/proc/self/exe", nullptr, nullptr, const_cast<char**>(arguments.data()),
        const_cast<char**>(environment.data()));
    if (failure != 0) return -1;
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Run only by the test below, in an environment that tries to make them fail.
class DISABLED_InAHostileEnvironment : public Transport {};

TEST_F(DISABLED_InAHostileEnvironment, AStrangerIsNotTrusted)
{
    EXPECT_THAT(send(get(std::getenv("STRANGER"))), fails(Code::serverCertificateUntrusted));
}

TEST_F(DISABLED_InAHostileEnvironment, AServerWithAWeakKeyIsNotTrusted)
{
    FaultServer server(authority().issue({.hasWeakKey = true}), welcome);
    const auto result = send(get(server.url()));
    EXPECT_TRUE(std::holds_alternative<Code>(result));
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(DISABLED_InAHostileEnvironment, AnAnswerCutShortIsNotTaken)
{
    FaultServer server(identity(), [](Conversation& peer, const auto&) {
        peer.write("HTTP/1.1 200 OK\r\n\r\nabc");
        peer.cut();
    });
    EXPECT_THAT(send(get(server.url())), fails(Code::networkConnectionLost));
}

TEST_F(DISABLED_InAHostileEnvironment, AServerOfTls11IsRefused)
{
    FaultServer server(identity(), welcome, {TLS1_1_VERSION, TLS1_1_VERSION});
    EXPECT_THAT(send(get(server.url())), fails(Code::secureConnectionFailed));
}

TEST_F(DISABLED_InAHostileEnvironment, AGoodServerIsTrustedAndNoSecretWrittenDown)
{
    FaultServer server(identity(), welcome);
    EXPECT_THAT(send(get(server.url())), answers(200, "hello"));
    EXPECT_FALSE(std::filesystem::exists(std::getenv("SSLKEYLOGFILE"))
        && std::filesystem::file_size(std::getenv("SSLKEYLOGFILE")) > 0);
}

TEST(TlsPolicy, HoldsWhateverTheEnvironmentAndTheConfigurationOfTheLibrariesSay)
{
    const Authority stranger("A stranger");
    FaultServer server(stranger.issue(), welcome);
    const Scratch scratch;
    scratch.write(".curlrc", "insecure\n");
    const auto configuration = scratch.write("openssl.cnf",
        "openssl_conf = all\n[all]\nssl_conf = modules\n[modules]\nsystem_default = tls\n[tls]\nVerifyCAFile = "
            + stranger.bundle()
            + "\nMinProtocol = TLSv1\nCipherString = ALL:@SECLEVEL=0\nOptions = UnsafeLegacyRenegotiation\n");

    const auto exitCode = exitCodeOf("DISABLED_InAHostileEnvironment.*",
        {"STRANGER=" + server.url(), "OPENSSL_CONF=" + configuration, "SSL_CERT_FILE=" + stranger.bundle(),
            "CURL_CA_BUNDLE=" + stranger.bundle(), "REQUESTS_CA_BUNDLE=" + stranger.bundle(),
            "SSL_CERT_DIR=" + scratch.path(""), "HOME=" + scratch.path(""), "CURL_HOME=" + scratch.path(""),
            "SSLKEYLOGFILE=" + scratch.path("secrets")});
    EXPECT_EQ(exitCode, 0);
    EXPECT_TRUE(server.requests().empty());
    EXPECT_GE(server.connections(), 1);
}

}  // namespace
}  // namespace larkspan::adapters
