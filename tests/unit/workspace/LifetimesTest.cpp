#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "api/KeychainHelper.h"
#include "workspace/TasksOfScreens.h"

// Every screen is dropped at every suspension point of each of its tasks, in each way in which it can be: a task is run
// for so many turns of either thread, for each number of turns until it ends by itself.

namespace larkspan::workspace {

namespace {

/// How a screen goes while its task runs.
struct Departure {
    const char* name;
    bool isOfAPage;
    void (*drop)(Program& program, const Started& task);
};

void closeWindow(Program& program, const Started&)
{
    program.dashboard.reset();
}

void clearAccount(Program& program, const Started& task)
{
    program.state->clearAccountData();
    // A page in which an action runs stays until that has ended.
    program.run();
    task.leave();
    if (program.dashboard) program.dashboard->closePage();
}

void endProgram(Program& program, const Started&)
{
    program.dashboard.reset();
    program.state.reset();
    program.client.drop();
    program.transport.pending.clear();
    program.client.drop();
    program.main.drop();
}

constexpr Departure departures[] = {
    {"IsLeft", false, [](Program&, const Started& task) { task.leave(); }},
    {"GoesWithItsTab", true, [](Program& program, const Started&) { program.page()->select(Tab::overview); }},
    {"GoesWithItsPage", true, [](Program& program, const Started&) { program.dashboard->closePage(); }},
    {"GoesWithTheWindow", false, &closeWindow},
    {"GoesWithTheAccount", false, &clearAccount},
    {"GoesWithTheProgram", false, &endProgram},
};

struct Lifetime {
    TaskOfAScreen task;
    Departure departure;
};

std::string nameOf(const testing::TestParamInfo<Lifetime>& each)
{
    return std::string(each.param.task.name) + "AndTheScreen" + each.param.departure.name;
}

void PrintTo(const Lifetime& each, std::ostream* out)
{
    *out << each.task.name << ", " << each.departure.name;
}

class Lifetimes : public testing::TestWithParam<Lifetime> {
protected:
    /// Runs the task for so many turns before its screen goes; returns false if it had ended before.
    bool goesAfter(int turns, const Failure& failure)
    {
        Program program(failure);
        program.transport.requests.clear();
        int looks = 0;
        auto task = GetParam().task.start(program, looks);
        for (int turn = 0; turn < turns; ++turn) {
            if (!program.turn()) return false;
        }

        task.look.reset();
        const int looksBefore = looks;
        GetParam().departure.drop(program, task);
        program.run();

        EXPECT_EQ(looks, looksBefore) << "it was looked at afterwards";
        EXPECT_TRUE(task.screen.expired()) << "something still holds it";
        EXPECT_LE(program.orders(), 1U) << "an order was sent twice";
        if (program.state) {
            program.servePages({"p", "q"}, {});
            // An order for a new record went to the address of the list.
            for (const auto* const list : {"v1/incidents", "v1/maintenances"}) program.serve(list, "[]");
            api::KeychainHelper::saveAPIKey(program.credentials, "k-123");
            program.refresh();
            EXPECT_EQ(program.state->statusPages->size(), 2U) << "the next cycle does not work";
        }
        return true;
    }
};

TEST_P(Lifetimes, LeaveNothingBehindAtAnySuspensionPoint)
{
    const Failure failures[]
        = {{}, platform::HttpResponse{.status = 500, .body = ""}, URLError::Code::networkConnectionLost};
    for (const auto& failure : failures) {
        int turns = 0;
        while (goesAfter(turns, failure)) {
            if (HasFailure()) FAIL() << "after " << turns << " turns, failure " << &failure - failures;
            ++turns;
        }
        EXPECT_GE(turns, 3) << "the task did not wait for anything";
    }
}

std::vector<Lifetime> allLifetimes()
{
    std::vector<Lifetime> all;
    for (const auto& task : tasksOfScreens()) {
        for (const auto& departure : departures) {
            if (task.isInAPage || !departure.isOfAPage) all.push_back({task, departure});
        }
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(When, Lifetimes, testing::ValuesIn(allLifetimes()), nameOf);

}  // namespace

}  // namespace larkspan::workspace
