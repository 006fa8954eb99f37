#include "presentation/screens/FailureAlert.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace larkspan::presentation {

namespace {

class AlertsOfAScreen : public testing::Test {
protected:
    struct Screen : support::Observable {
        FailureAlert alert{*this};
    } screen;
    FailureAlert& alert = screen.alert;
};

TEST_F(AlertsOfAScreen, AreShownUntilTheyAreRead)
{
    alert.raise("first");
    EXPECT_EQ(alert.words(), "first");
    alert.dismiss();
    EXPECT_EQ(alert.words(), "");
}

TEST_F(AlertsOfAScreen, FollowEachOtherInTheOrderInWhichTheyWereRaised)
{
    alert.raise("first");
    alert.raise("second");
    alert.raise("third");
    EXPECT_EQ(alert.words(), "first");
    alert.dismiss();
    EXPECT_EQ(alert.words(), "second");
    alert.dismiss();
    EXPECT_EQ(alert.words(), "third");
    alert.dismiss();
    EXPECT_EQ(alert.words(), "");
}

TEST_F(AlertsOfAScreen, AreToldApartAlsoWhereTheySayTheSame)
{
    std::set<int> numbers{alert.number()};
    alert.raise("same");
    numbers.insert(alert.number());
    alert.raise("same");
    EXPECT_TRUE(numbers.contains(alert.number())) << "it is not up yet";
    alert.dismiss();
    numbers.insert(alert.number());
    alert.dismiss();
    alert.raise("same");
    numbers.insert(alert.number());
    EXPECT_EQ(numbers.size(), 4u);
}

TEST_F(AlertsOfAScreen, ThatAreWithdrawnAreNotShownLater)
{
    alert.raise("first");
    alert.raise("second");
    alert.withdraw();
    EXPECT_EQ(alert.words(), "");
    alert.raise("third");
    EXPECT_EQ(alert.words(), "third");
}

TEST_F(AlertsOfAScreen, LeaveTheirTextForWhoeverAsks)
{
    alert.raise("first");
    alert.dismiss();
    EXPECT_FALSE(*alert.isUp);
    EXPECT_EQ(*alert.text, "first");
}

}  // namespace

}  // namespace larkspan::presentation
