#include "presentation/screens/Content.h"

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
    EXPECT_EQ(placeholderOf(Content::loading, {.loading = "Loading..."}, "of before"),
        (Placeholder{.text = "Loading...", .showsProgress = true}));
}

TEST(PlaceholderOfAFailure, HasTheErrorsDescription)
{
    const auto words = failureText(std::make_exception_ptr(api::APIError::missingAPIKey()));
    EXPECT_EQ(placeholderOf(Content::failure, {}, words),
        (Placeholder{.symbol = "exclamationmark.triangle",
            .tone = Tone::yellow,
            .text = "API key is missing.",
            .offersRetry = true}));
}

TEST(PlaceholderOfAFailure, OfAnErrorWithoutADescriptionSaysSoInWords)
{
    EXPECT_EQ(failureText(std::make_exception_ptr(std::runtime_error("x"))), "The operation could not be completed.");
}

TEST(PlaceholderOfAnEmptyList, IsTheListsOwn)
{
    const Placeholder nothing{.symbol = "checkmark.shield", .title = "Nothing"};
    EXPECT_EQ(placeholderOf(Content::empty, {.empty = nothing}, ""), nothing);
}

TEST(PlaceholderOfRecords, IsNone)
{
    EXPECT_EQ(placeholderOf(Content::records, {.loading = "Loading...", .empty = {.title = "Nothing"}}, "of before"),
        Placeholder{});
}

}  // namespace

}  // namespace larkspan::presentation
