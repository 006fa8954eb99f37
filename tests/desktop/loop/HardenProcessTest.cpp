#include "adapters/HardenProcess.h"

#include <sys/resource.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace larkspan::adapters {
namespace {

TEST(HardenedProcess, LeavesNoMemoryInACoreDump)
{
#ifndef NDEBUG
    GTEST_SKIP() << "a debug build keeps its core dumps";
#endif
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto hardenAndLook = [] {
        hardenProcess();
        rlimit limit{1, 1};
        getrlimit(RLIMIT_CORE, &limit);
        std::string filter;
        std::ifstream("/proc/self/coredump_filter") >> filter;
        const bool isHardened = limit.rlim_cur == 0 && limit.rlim_max == 0 && std::stoul(filter, nullptr, 16) == 0;
        std::_Exit(isHardened ? 0 : 1);
    };
    EXPECT_EXIT(hardenAndLook(), testing::ExitedWithCode(0), "");
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
