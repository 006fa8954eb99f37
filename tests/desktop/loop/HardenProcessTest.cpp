#include "adapters/HardenProcess.h"

#include <sys/resource.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace larkspan::adapters {
namespace {

bool hasNoDumps()
{
    rlimit limit{1, 1};
    getrlimit(RLIMIT_CORE, &limit);
    std::string filter;
    std::ifstream("/proc/self/coredump_filter") >> filter;
    return limit.rlim_cur == 0 && std::stoul(filter, nullptr, 16) == 0;
}

TEST(HardenedProcess, LeavesNoMemoryInACoreDump)
{
#ifndef NDEBUG
    GTEST_SKIP() << "a debug build keeps its core dumps";
#endif
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto hardenAndLook = [] {
        hardenProcess();
        std::_Exit(hasNoDumps() ? 0 : 1);
    };
    EXPECT_EXIT(hardenAndLook(), testing::ExitedWithCode(0), "");
}

TEST(HardenedProcess, GivesWhatItStartsTheCoreDumpsThatItWasGivenAndForbidsItsOwnAgain)
{
#ifndef NDEBUG
    GTEST_SKIP() << "a debug build keeps its core dumps";
#endif
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto hardenAndStart = [] {
        const rlimit given{4096, 8192};
        setrlimit(RLIMIT_CORE, &given);
        std::ofstream("/proc/self/coredump_filter") << "0x7f";
        hardenProcess();
        allowCoreDumpsAsGiven();
        const bool isGiven = std::system("grep -Eq '^Max core file size +4096 +8192 ' /proc/self/limits"
                                         " && grep -q '^0000007f$' /proc/self/coredump_filter")
            == 0;
        forbidCoreDumpsAgain();
        std::_Exit(isGiven && hasNoDumps() ? 0 : 1);
    };
    EXPECT_EXIT(hardenAndStart(), testing::ExitedWithCode(0), "");
}

TEST(HardenedProcess, GivesNoMoreRightsThanTheUsersToWhatItStarts)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto hardenAndStart = [] {
        hardenProcess();
        std::_Exit(std::system("grep -q '^NoNewPrivs:[[:space:]]*1$' /proc/self/status") == 0 ? 0 : 1);
    };
    EXPECT_EXIT(hardenAndStart(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace larkspan::adapters
