#include "adapters/http/LocalNetwork.h"

#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>

#include <memory>

namespace larkspan::adapters {

namespace {

bool leadsBeyondThisComputer(const ifaddrs& interface)
{
    if (!interface.ifa_addr) return false;
    const auto family = interface.ifa_addr->sa_family;
    const bool hasAddress = family == AF_INET || family == AF_INET6;
    const bool isUp = (interface.ifa_flags & IFF_RUNNING) != 0;
    const bool isLoopback = (interface.ifa_flags & IFF_LOOPBACK) != 0;
    return hasAddress && isUp && !isLoopback;
}

}  // namespace

bool hasNetwork()
{
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0) return true;
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> owned(first, &freeifaddrs);
    for (const auto* interface = first; interface; interface = interface->ifa_next)
        if (leadsBeyondThisComputer(*interface)) return true;
    return false;
}

}  // namespace larkspan::adapters
