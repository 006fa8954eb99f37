#include "support/FatalError.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <new>

#include "support/LegibleOutside.h"

namespace larkspan::support {

void fatalError(std::string_view message)
{
    // It may quote the service, whole.
    std::fprintf(stderr, "larkspan: fatal: %s\n", legibleOutside(message, Lines::one, message.size()).c_str());
    std::abort();
}

void endWhenMemoryRunsOut()
{
    std::set_new_handler([] {
        // Nothing that needs memory itself.
        constexpr std::string_view sentence = "larkspan: fatal: There is no memory left.\n";
        [[maybe_unused]] const auto written = ::write(STDERR_FILENO, sentence.data(), sentence.size());
        std::abort();
    });
}

}  // namespace larkspan::support
