#include "api/OrderOutcome.h"

#include <gtest/gtest.h>

#include <exception>
#include <stdexcept>
#include <string>

#include "model/json/DecodingError.h"
#include "model/records/Incident.h"
#include "platform/URLError.h"

namespace larkspan::api {

namespace {

using Code = platform::URLError::Code;

template <typename Error>
bool mayHaveTakenPlaceAfter(const Error& error)
{
    return mayHaveTakenEffect(std::make_exception_ptr(error));
}

TEST(OrderOutcome, IsUnknownWhereTheAnswerWasLost)
{
    for (const auto code : {Code::timedOut, Code::networkConnectionLost, Code::badServerResponse,
             Code::secureConnectionFailed, Code::dataLengthExceedsMaximum, Code::cancelled, Code::unknown}) {
        EXPECT_TRUE(mayHaveTakenPlaceAfter(platform::URLError(code))) << static_cast<int>(code);
    }
}

TEST(OrderOutcome, IsUnknownWhereTheAnswerCannotBeRead)
{
    EXPECT_TRUE(mayHaveTakenPlaceAfter(APIError::invalidResponse()));
    const model::DecodingError unreadable(model::DecodingError::Kind::keyNotFound, "id", "The key is missing");
    EXPECT_TRUE(mayHaveTakenPlaceAfter(unreadable));
    EXPECT_TRUE(mayHaveTakenPlaceAfter(APIError::decoding(std::make_exception_ptr(unreadable))));
}

TEST(OrderOutcome, IsUnknownWhereTheServiceBrokeInTheMiddleOrSentElsewhere)
{
    for (const int code : {302, 500, 502, 503, 504}) EXPECT_TRUE(mayHaveTakenPlaceAfter(APIError::httpStatus(code)));
}

TEST(OrderOutcome, IsKnownWhereTheServiceRefused)
{
    for (const int code : {400, 401, 403, 404, 409, 422, 429, 499}) {
        EXPECT_FALSE(mayHaveTakenPlaceAfter(APIError::httpStatus(code))) << code;
    }
}

TEST(OrderOutcome, IsKnownWhereNothingWasSent)
{
    for (const auto code : {Code::notConnectedToInternet, Code::dnsLookupFailed, Code::cannotFindHost,
             Code::cannotConnectToHost, Code::serverCertificateUntrusted, Code::userAuthenticationRequired}) {
        EXPECT_FALSE(mayHaveTakenPlaceAfter(platform::URLError(code))) << static_cast<int>(code);
    }
    EXPECT_FALSE(mayHaveTakenPlaceAfter(APIError::missingAPIKey()));
    EXPECT_FALSE(mayHaveTakenPlaceAfter(APIError::invalidURL()));
    EXPECT_FALSE(mayHaveTakenPlaceAfter(APIError::custom("No such state.")));
    EXPECT_FALSE(mayHaveTakenPlaceAfter(std::runtime_error("no text")));
}

TEST(OrderOutcome, OfAnotherRecordIsAnAnswerThatCannotBeRead)
{
    model::Incident incident;
    incident.id = "7";
    EXPECT_EQ(answerAbout("7", incident).id, "7");
    try {
        answerAbout("8", incident);
        FAIL() << "it was taken";
    } catch (const APIError& error) {
        EXPECT_EQ(error.kind(), APIError::Case::invalidResponse);
    }
}

}  // namespace

}  // namespace larkspan::api
