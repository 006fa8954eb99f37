#include "adapters/HardenProcess.h"

#include <sys/prctl.h>
#include <sys/resource.h>

#include <fstream>

namespace larkspan::adapters {

void hardenProcess()
{
    // Nothing that it starts, such as the browser, needs more rights than the user has.
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
#ifdef NDEBUG
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    // The limit does not apply to dumps that are piped to a program, so these are left without content too. Making the
    // process undumpable would be simpler, but the desktop's portals refuse to serve such a process.
    std::ofstream("/proc/self/coredump_filter") << "0x0";
#endif
}

}  // namespace larkspan::adapters
