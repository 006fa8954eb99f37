#include "core/APIKeyVerification.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "api/APIError.h"
#include "fakes/PolledAccount.h"
#include "platform/URLError.h"

namespace larkspan::core {

namespace {

using api::APIError;
using platform::URLError;
using Code = URLError::Code;
using Result = APIKeyVerificationResult;

struct FailureRow {
    std::exception_ptr failure;
    Result result;
};

FailureRow row(Code code, Result result)
{
    return {std::make_exception_ptr(URLError(code)), result};
}

FailureRow row(const APIError& error, Result result)
{
    return {std::make_exception_ptr(error), result};
}

class Classification : public testing::TestWithParam<FailureRow> {};

TEST_P(Classification, GoesByTheCode)
{
    EXPECT_EQ(classifiedFailure(GetParam().failure), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(TransportFailures, Classification,
    testing::Values(row(Code::notConnectedToInternet, Result::offline),
        row(Code::networkConnectionLost, Result::offline), row(Code::dnsLookupFailed, Result::offline),
        row(Code::cannotFindHost, Result::offline), row(Code::cannotConnectToHost, Result::offline),
        row(Code::internationalRoamingOff, Result::offline), row(Code::callIsActive, Result::offline),
        row(Code::dataNotAllowed, Result::offline), row(Code::timedOut, Result::timedOut),
        row(Code::cancelled, Result::unknown), row(Code::secureConnectionFailed, Result::unknown),
        row(Code::serverCertificateUntrusted, Result::unknown), row(Code::badServerResponse, Result::unknown),
        row(Code::dataLengthExceedsMaximum, Result::unknown), row(Code::userAuthenticationRequired, Result::unknown),
        row(Code::unknown, Result::unknown)));

INSTANTIATE_TEST_SUITE_P(Statuses, Classification,
    testing::Values(row(APIError::httpStatus(401), Result::invalid), row(APIError::httpStatus(403), Result::invalid),
        row(APIError::httpStatus(404), Result::unknown), row(APIError::httpStatus(429), Result::unknown),
        row(APIError::httpStatus(499), Result::unknown), row(APIError::httpStatus(500), Result::serverError),
        row(APIError::httpStatus(599), Result::serverError), row(APIError::httpStatus(600), Result::unknown)));

INSTANTIATE_TEST_SUITE_P(OtherFailures, Classification,
    testing::Values(row(APIError::missingAPIKey(), Result::unknown), row(APIError::invalidURL(), Result::unknown),
        row(APIError::invalidResponse(), Result::unknown), row(APIError::custom("c"), Result::unknown),
        FailureRow{std::make_exception_ptr(std::runtime_error("other")), Result::unknown}));

class VerifyAPIKey : public testing::Test, public fakes::PolledAccount {
protected:
    Result verify(std::string key) { return result(state->verifyAPIKey(std::move(key))); }
};

TEST_F(VerifyAPIKey, ThatTheServiceAcceptsIsValidAndNeitherStoreNorStateIsTouched)
{
    transport.script(pagesURL, 200, "[]");
    const auto before = credentials.items;
    int changes = 0;
    const auto subscription = state->objectWillChange([&changes] { ++changes; });
    EXPECT_EQ(verify("k-new"), Result::valid);
    EXPECT_EQ(credentials.items, before);
    EXPECT_EQ(changes, 0);
}

TEST_F(VerifyAPIKey, SendsTheTrimmedKey)
{
    transport.script(pagesURL, 200, "[]");
    verify("  k-new\n");
    EXPECT_EQ(transport.requests.at(0).headers.at(1).second, "k-new");
}

TEST_F(VerifyAPIKey, OfWhiteSpaceOnlyIsInvalidWithoutAnyRequest)
{
    EXPECT_EQ(verify(" \n\t"), Result::invalid);
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(VerifyAPIKey, ThatCannotStandInAHeaderIsInvalidWithoutAnyRequest)
{
    EXPECT_EQ(verify("k\r\nX-Evil: 1"), Result::invalid);
    EXPECT_EQ(verify("cl\u00e9"), Result::invalid);
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(VerifyAPIKey, ThatFailsIsClassifiedAndNeverThrows)
{
    transport.script(pagesURL, 401, "");
    EXPECT_EQ(verify("k"), Result::invalid);
    transport.script(pagesURL, 502, "");
    EXPECT_EQ(verify("k"), Result::serverError);
    transport.script(pagesURL, Code::timedOut);
    EXPECT_EQ(verify("k"), Result::timedOut);
}

}  // namespace

}  // namespace larkspan::core
