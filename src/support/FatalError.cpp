#include "support/FatalError.h"

#include <cstdio>
#include <cstdlib>

#include "support/LegibleOutside.h"

namespace larkspan::support {

void fatalError(std::string_view message)
{
    // It may quote the service, whole.
    std::fprintf(stderr, "larkspan: fatal: %s\n", legibleOutside(message, Lines::one, message.size()).c_str());
    std::abort();
}

}  // namespace larkspan::support
