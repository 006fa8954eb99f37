#include "support/FatalError.h"

#include <cstdio>
#include <cstdlib>

namespace larkspan::support {

void fatalError(std::string_view message)
{
    std::fprintf(stderr, "larkspan: fatal: %.*s\n", static_cast<int>(message.size()), message.data());
    std::abort();
}

}  // namespace larkspan::support
