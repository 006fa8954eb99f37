#include "support/FatalError.h"

#include <cstdio>
#include <cstdlib>

#include "support/LegibleOutside.h"

namespace larkspan::support {

void fatalError(std::string_view message)
{
    // It may quote the service.
    std::fprintf(stderr, "larkspan: fatal: %s\n", legibleOutside(message).c_str());
    std::abort();
}

}  // namespace larkspan::support
