#include "support/FatalError.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>

namespace larkspan::support {

namespace {

TEST(FatalErrorDeathTest, EndsTheProcessWithItsSentence)
{
    EXPECT_DEATH(fatalError("Two pages have the id \"1\"."), "^larkspan: fatal: Two pages have the id \"1\".\n$");
}

TEST(FatalErrorDeathTest, AProcessThatGetsNoMemoryEndsWithASentence)
{
    const auto takeTooMuch = [] {
        endWhenMemoryRunsOut();
        ::operator delete(::operator new(std::numeric_limits<std::ptrdiff_t>::max()));
    };
    EXPECT_DEATH(takeTooMuch(), "^larkspan: fatal: There is no memory left.\n$");
}

}  // namespace

}  // namespace larkspan::support
