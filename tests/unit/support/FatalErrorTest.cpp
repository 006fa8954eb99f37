#include "support/FatalError.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <stdexcept>
#include <thread>

namespace larkspan::support {

namespace {

TEST(FatalErrorDeathTest, EndsTheProcessWithItsSentence)
{
    EXPECT_DEATH(fatalError("Two pages have the id \"1\"."), "^larkspan: fatal: Two pages have the id \"1\".\n$");
}

TEST(FatalErrorDeathTest, AProcessThatGetsNoMemoryEndsWithASentence)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "The allocator of a sanitizer ends the process itself.";
#endif
    const auto takeTooMuch = [] {
        endWhenMemoryRunsOut();
        ::operator delete(::operator new(std::numeric_limits<std::ptrdiff_t>::max()));
    };
    EXPECT_DEATH(takeTooMuch(), "^larkspan: fatal: There is no memory left.\n$");
}

/// As a library does in a thread of its own.
template <typename Exception>
void endInAThreadBy(Exception exception)
{
    endWhenMemoryRunsOut();
    std::thread([&exception] { throw exception; }).join();
}

TEST(FatalErrorDeathTest, SoDoesOneWhoseLibraryGetsNone)
{
    EXPECT_DEATH(endInAThreadBy(std::bad_alloc()), "^larkspan: fatal: There is no memory left.\n$");
}

TEST(FatalErrorDeathTest, AnotherExceptionIsNotTakenForWantOfMemory)
{
    EXPECT_DEATH(endInAThreadBy(std::runtime_error("something else")), "something else");
}

}  // namespace

}  // namespace larkspan::support
