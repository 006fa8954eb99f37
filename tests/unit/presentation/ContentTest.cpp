#include "presentation/Content.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "api/APIError.h"

namespace larkspan::presentation {

namespace {

struct ContentRow {
    bool hasRecords;
    bool isLoading;
    bool hasFailed;
    Content content;
};

class ContentOfAScreen : public testing::TestWithParam<ContentRow> {};

TEST_P(ContentOfAScreen, IsTheRecordsElseTheLoadElseItsFailureElseNothing)
{
    const auto row = GetParam();
    EXPECT_EQ(contentOf(row.hasRecords, row.isLoading, row.hasFailed), row.content);
}

INSTANTIATE_TEST_SUITE_P(EachCase, ContentOfAScreen,
    testing::Values(ContentRow{false, false, false, Content::empty}, ContentRow{false, false, true, Content::failure},
        ContentRow{false, true, false, Content::loading}, ContentRow{false, true, true, Content::loading},
        ContentRow{true, false, false, Content::records}, ContentRow{true, false, true, Content::records},
        ContentRow{true, true, false, Content::records}, ContentRow{true, true, true, Content::records}));

TEST(PlaceholderOfALoad, IsProgressWithItsWords)
{
    EXPECT_EQ(loadingPlaceholder("Loading..."), (Placeholder{.text = "Loading...", .showsProgress = true}));
}

TEST(PlaceholderOfAFailure, HasTheErrorsDescription)
{
    const Placeholder look{.symbol = "exclamationmark.triangle", .tone = Tone::yellow, .offersRetry = true};
    auto expected = look;
    expected.text = "API key is missing.";
    EXPECT_EQ(failurePlaceholder(look, std::make_exception_ptr(api::APIError::missingAPIKey())), expected);
}

TEST(PlaceholderOfAFailure, OfAnErrorWithoutADescriptionSaysSoInWords)
{
    EXPECT_EQ(failurePlaceholder({}, std::make_exception_ptr(std::runtime_error("x"))).text,
        "The operation could not be completed.");
}

}  // namespace

}  // namespace larkspan::presentation
