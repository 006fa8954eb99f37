#include "presentation/screens/AlertSequence.h"

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>

namespace larkspan::presentation {

namespace {

class AlertsOfAScreen : public testing::Test {
protected:
    std::optional<std::string> shown;
    AlertSequence alerts{[this](std::optional<std::string> words) { shown = std::move(words); }};
};

TEST_F(AlertsOfAScreen, AreShownUntilTheyAreRead)
{
    alerts.raise("first");
    EXPECT_EQ(shown, "first");
    alerts.dismiss();
    EXPECT_EQ(shown, std::nullopt);
}

TEST_F(AlertsOfAScreen, FollowEachOtherInTheOrderInWhichTheyWereRaised)
{
    alerts.raise("first");
    alerts.raise("second");
    alerts.raise("third");
    EXPECT_EQ(shown, "first");
    alerts.dismiss();
    EXPECT_EQ(shown, "second");
    alerts.dismiss();
    EXPECT_EQ(shown, "third");
    alerts.dismiss();
    EXPECT_EQ(shown, std::nullopt);
}

TEST_F(AlertsOfAScreen, AreToldApartAlsoWhereTheySayTheSame)
{
    std::set<int> numbers{alerts.number()};
    alerts.raise("same");
    numbers.insert(alerts.number());
    alerts.raise("same");
    EXPECT_TRUE(numbers.contains(alerts.number())) << "it is not up yet";
    alerts.dismiss();
    numbers.insert(alerts.number());
    alerts.dismiss();
    alerts.raise("same");
    numbers.insert(alerts.number());
    EXPECT_EQ(numbers.size(), 4u);
}

TEST_F(AlertsOfAScreen, ThatAreWithdrawnAreNotShownLater)
{
    alerts.raise("first");
    alerts.raise("second");
    alerts.withdraw();
    EXPECT_EQ(shown, std::nullopt);
    alerts.raise("third");
    EXPECT_EQ(shown, "third");
}

}  // namespace

}  // namespace larkspan::presentation
