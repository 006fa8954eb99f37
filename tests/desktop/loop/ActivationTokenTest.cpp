#include "adapters/ActivationToken.h"

#include <unistd.h>

#include <QtGlobal>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace larkspan::adapters {
namespace {

constexpr auto variable = "XDG_ACTIVATION_TOKEN";

/// A variable, and where other threads find it.
using Place = std::pair<char**, char*>;

std::vector<Place> placesOfTheOthers()
{
    std::vector<Place> places;
    for (char** each = environ; *each; ++each) {
        if (!std::string(*each).starts_with(variable)) places.emplace_back(each, *each);
    }
    return places;
}

class ActivationToken : public testing::Test {
protected:
    ~ActivationToken() override
    {
        qunsetenv(variable);
        qunsetenv("AFTER_THE_TOKEN");
    }

    /// As Qt does with each token; each is longer than the one before.
    static void comeAndGo()
    {
        const auto before = placesOfTheOthers();
        for (int length = 0; length <= 1024; length += 64) {
            qunsetenv(variable);
            EXPECT_EQ(placesOfTheOthers(), before);
            qputenv(variable, QByteArray(length + 1, 'x'));
            EXPECT_EQ(placesOfTheOthers(), before);
        }
    }
};

TEST_F(ActivationToken, OfTheLauncherIsReadAndKeptForQt)
{
    qputenv(variable, "from the launcher");
    EXPECT_EQ(launchActivationToken(), "from the launcher");
    EXPECT_EQ(qgetenv(variable), "from the launcher");
}

TEST_F(ActivationToken, ThatComesAndGoesLeavesTheOtherVariablesWhereOtherThreadsReadThem)
{
    launchActivationToken();
    EXPECT_FALSE(qEnvironmentVariableIsSet(variable));
    comeAndGo();
}

TEST_F(ActivationToken, ThatComesAndGoesAfterTheLaunchersLeavesTheOtherVariablesWhereOtherThreadsReadThem)
{
    qputenv(variable, "from the launcher");
    qputenv("AFTER_THE_TOKEN", "1");
    launchActivationToken();
    comeAndGo();
}

}  // namespace
}  // namespace larkspan::adapters
