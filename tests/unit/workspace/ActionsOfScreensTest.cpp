#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/Refusal.h"
#include "workspace/TasksOfScreens.h"

// Every order that a screen gives: whatever becomes of it, the person is told in the right words, the screen is busy no
// more, and the next try is possible.

namespace larkspan::workspace {

namespace {

std::string nameOf(const testing::TestParamInfo<TaskOfAScreen>& each)
{
    return each.param.name;
}

class Orders : public testing::TestWithParam<TaskOfAScreen> {
protected:
    int looks_ = 0;
};

TEST_P(Orders, ThatFailTellTheirWordsAndCanBeGivenAgain)
{
    for (const auto& refusal : fakes::refusals()) {
        SCOPED_TRACE(refusal.alert);
        Program program(refusal.answer);
        program.transport.requests.clear();
        const auto task = GetParam().start(program, looks_);
        EXPECT_TRUE(task.isBusy());
        program.run();
        EXPECT_EQ(task.words(), refusal.alert);
        EXPECT_FALSE(task.isBusy());
        EXPECT_EQ(program.orders(), 1U);

        program.mend();
        program.transport.requests.clear();
        task.again();
        program.run();
        EXPECT_EQ(task.words(), "");
        EXPECT_FALSE(task.isBusy());
        EXPECT_EQ(program.orders(), 1U);
    }
}

TEST_P(Orders, ThatAreCarriedOutAreNotGivenAgainWhereEveryRequestAfterThemFails)
{
    Program program({});
    program.transport.requests.clear();
    const auto task = GetParam().start(program, looks_);
    while (program.orders() == 0) ASSERT_TRUE(program.turn());
    program.failAll();
    program.run();
    const bool looks = GetParam().kind == TaskOfAScreen::Kind::orderAndLook;
    EXPECT_EQ(task.words(), looks ? "Server returned HTTP status code 500." : "");
    EXPECT_FALSE(task.isBusy());
    EXPECT_EQ(program.orders(), 1U);
}

std::vector<TaskOfAScreen> allOrders()
{
    std::vector<TaskOfAScreen> all;
    for (const auto& task : tasksOfScreens()) {
        if (task.kind != TaskOfAScreen::Kind::look) all.push_back(task);
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(OfEachScreen, Orders, testing::ValuesIn(allOrders()), nameOf);

}  // namespace

}  // namespace larkspan::workspace
