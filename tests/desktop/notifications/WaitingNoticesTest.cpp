#include "adapters/WaitingNotices.h"

#include <gtest/gtest.h>

namespace larkspan::adapters {
namespace {

Notice notice(const std::string& identifier, const std::string& title = "New Incident")
{
    return {identifier, NotificationText({.title = title})};
}

std::string identifierOfOldest(WaitingNotices& waiting, const std::set<std::string>& excluded = {})
{
    const auto oldest = waiting.takeOldest(excluded);
    return oldest ? oldest->identifier : "none";
}

TEST(WaitingNotices, AreTakenInTheOrderInWhichTheyCame)
{
    WaitingNotices waiting;
    for (const auto* const identifier : {"b", "a", "c"}) waiting.add(notice(identifier));

    for (const auto* const identifier : {"b", "a", "c"}) EXPECT_EQ(identifierOfOldest(waiting), identifier);
    EXPECT_TRUE(waiting.isEmpty());
    EXPECT_EQ(identifierOfOldest(waiting), "none");
}

TEST(WaitingNotices, OfOneIdentifierAreOneWithTheNewestTextInTheOldestPlace)
{
    WaitingNotices waiting;
    waiting.add(notice("a", "outdated"));
    waiting.add(notice("b"));
    waiting.add(notice("a", "newest"));

    const auto oldest = waiting.takeOldest({});
    EXPECT_EQ(oldest->identifier, "a");
    EXPECT_EQ(oldest->text.title, "newest");
    EXPECT_EQ(identifierOfOldest(waiting), "b");
    EXPECT_TRUE(waiting.isEmpty());
}

TEST(WaitingNotices, OfExcludedIdentifiersStayAndKeepTheirPlace)
{
    WaitingNotices waiting;
    for (const auto* const identifier : {"a", "b"}) waiting.add(notice(identifier));

    EXPECT_EQ(identifierOfOldest(waiting, {"a"}), "b");
    EXPECT_EQ(identifierOfOldest(waiting, {"a"}), "none");
    EXPECT_EQ(identifierOfOldest(waiting), "a");
}

TEST(WaitingNotices, OfTenThousandNoneIsLostAndOneMoreCostsTheOldest)
{
    WaitingNotices waiting;
    for (int i = 0; i <= 10'000; ++i) waiting.add(notice(std::to_string(i)));

    for (int i = 1; i <= 10'000; ++i) ASSERT_EQ(identifierOfOldest(waiting), std::to_string(i));
    EXPECT_TRUE(waiting.isEmpty());
}

TEST(WaitingNotices, AnIdentifierThatWasTakenWaitsAnewAtTheEnd)
{
    WaitingNotices waiting;
    for (const auto* const identifier : {"a", "b"}) waiting.add(notice(identifier));
    waiting.takeOldest({});
    waiting.add(notice("a"));

    EXPECT_EQ(identifierOfOldest(waiting), "b");
    EXPECT_EQ(identifierOfOldest(waiting), "a");
}

}  // namespace
}  // namespace larkspan::adapters
