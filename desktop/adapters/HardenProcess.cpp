#include "adapters/HardenProcess.h"

#include <sys/prctl.h>
#include <sys/resource.h>

#include <fstream>
#include <optional>
#include <string>

namespace larkspan::adapters {

namespace {

constexpr auto filterFile = "/proc/self/coredump_filter";

struct CoreDumps {
    rlimit size{};
    /// The kinds of memory in them, in hexadecimal digits.
    std::string filter;

    static CoreDumps current()
    {
        CoreDumps dumps;
        getrlimit(RLIMIT_CORE, &dumps.size);
        std::ifstream(filterFile) >> dumps.filter;
        return dumps;
    }

    /// The size does not apply to dumps that are piped to a program, so these are left without content too. Making the
    /// process undumpable would be simpler, but the desktop's portals refuse to serve such a process. The hard limit is
    /// kept, since no process can raise it again.
    CoreDumps forbidden() const { return {{.rlim_cur = 0, .rlim_max = size.rlim_max}, "0"}; }

    void apply() const
    {
        setrlimit(RLIMIT_CORE, &size);
        std::ofstream(filterFile) << "0x" + filter;
    }
};

std::optional<CoreDumps>& given()
{
    static std::optional<CoreDumps> dumps;
    return dumps;
}

}  // namespace

void hardenProcess()
{
    // Nothing that it starts, such as the browser, needs more rights than the user has.
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
#ifdef NDEBUG
    given() = CoreDumps::current();
    forbidCoreDumpsAgain();
#endif
}

void allowCoreDumpsAsGiven()
{
    if (given()) given()->apply();
}

void forbidCoreDumpsAgain()
{
    if (given()) given()->forbidden().apply();
}

}  // namespace larkspan::adapters
