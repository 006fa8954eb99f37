#include "api/APIError.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace larkspan::api {

namespace {

struct TextRow {
    APIError error;
    APIError::Case kind;
    std::string text;
};

class APIErrorText : public testing::TestWithParam<TextRow> {};

TEST_P(APIErrorText, IsExactlyTheServicesWording)
{
    EXPECT_EQ(GetParam().error.kind(), GetParam().kind);
    EXPECT_EQ(GetParam().error.localizedDescription(), GetParam().text);
}

const auto undecodable = std::make_exception_ptr(support::LocalizedError("data[0].id: is missing"));

INSTANTIATE_TEST_SUITE_P(EachCase, APIErrorText,
    testing::Values(
        TextRow{APIError::httpStatus(401), APIError::Case::httpStatus, "Server returned HTTP status code 401."},
        TextRow{APIError::decoding(undecodable), APIError::Case::decoding,
            "Failed to decode response: data[0].id: is missing"},
        TextRow{APIError::custom("As it stands"), APIError::Case::custom, "As it stands"},
        TextRow{APIError::missingAPIKey(), APIError::Case::missingAPIKey, "API key is missing."},
        TextRow{APIError::invalidURL(), APIError::Case::invalidURL, "Could not build a valid API URL."},
        TextRow{APIError::invalidResponse(), APIError::Case::invalidResponse,
            "Received an invalid response from the server."}));

TEST(APIError, OnlyAnHttpStatusHasACode)
{
    EXPECT_EQ(APIError::httpStatus(503).statusCode(), 503);
    EXPECT_EQ(APIError::missingAPIKey().statusCode(), std::nullopt);
}

}  // namespace

}  // namespace larkspan::api
