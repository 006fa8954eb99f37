#include "support/FatalError.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

#include "support/LegibleOutside.h"

namespace larkspan::support {

namespace {

[[noreturn]] void endWithoutMemory()
{
    // Standard error has no buffer, so this needs no memory itself.
    std::fputs("larkspan: fatal: There is no memory left.\n", stderr);
    std::abort();
}

std::terminate_handler terminateBefore = nullptr;

[[noreturn]] void endWithException()
{
    try {
        if (const auto exception = std::current_exception()) std::rethrow_exception(exception);
    } catch (const std::bad_alloc&) {
        endWithoutMemory();
    } catch (...) {
        // The library's own end names the exception.
        terminateBefore();
    }
    std::abort();
}

}  // namespace

void fatalError(std::string_view message)
{
    // It may quote the service, whole.
    std::fprintf(stderr, "larkspan: fatal: %s\n", legibleOutside(message, Lines::one, message.size()).c_str());
    std::abort();
}

void endWhenMemoryRunsOut()
{
    std::set_new_handler(endWithoutMemory);
    // Libraries ask for memory in other ways, too, and throw.
    terminateBefore = std::set_terminate(endWithException);
}

}  // namespace larkspan::support
