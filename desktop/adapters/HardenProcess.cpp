#include "adapters/HardenProcess.h"

#include <sys/resource.h>

#include <fstream>

namespace larkspan::adapters {

void hardenProcess()
{
#ifdef NDEBUG
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    // Where dumps are piped to a program the limit doesn't bind, so they are left without content too. Making the
    // process undumpable would be simpler, but then the desktop's portals refuse to serve it.
    std::ofstream("/proc/self/coredump_filter") << "0x0";
#endif
}

}  // namespace larkspan::adapters
