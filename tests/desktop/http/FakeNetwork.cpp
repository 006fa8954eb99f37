#include "FakeNetwork.h"

#include <dlfcn.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netdb.h>
#include <netinet/in.h>

#include <atomic>
#include <string_view>

namespace {

std::atomic<bool> isResolverSilent = false;
std::atomic<bool> hasInterface = true;

ifaddrs* interface()
{
    static sockaddr_in address{.sin_family = AF_INET, .sin_port = 0, .sin_addr = {}, .sin_zero = {}};
    static ifaddrs only{};
    only.ifa_flags = IFF_UP | IFF_RUNNING;
    only.ifa_addr = reinterpret_cast<sockaddr*>(&address);
    return &only;
}

template <typename Function>
Function* theSystems(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" int getaddrinfo(const char* node, const char* service, const addrinfo* hints, addrinfo** found)
{
    const std::string_view name = node ? node : "";
    if (name == "hangs.invalid") isResolverSilent.wait(true);
    if (name.ends_with(".invalid")) return EAI_NONAME;
    const bool isOurs = name == "service.test" || name == "other.test";
    return theSystems<decltype(getaddrinfo)>("getaddrinfo")(isOurs ? "127.0.0.1" : node, service, hints, found);
}

extern "C" int getifaddrs(ifaddrs** first) noexcept
{
    *first = hasInterface ? interface() : nullptr;
    return 0;
}

extern "C" void freeifaddrs(ifaddrs*) noexcept {}

namespace larkspan::adapters {

SilentResolver::SilentResolver()
{
    isResolverSilent = true;
}

SilentResolver::~SilentResolver()
{
    isResolverSilent = false;
    isResolverSilent.notify_all();
}

NoInterfaces::NoInterfaces()
{
    hasInterface = false;
}

NoInterfaces::~NoInterfaces()
{
    hasInterface = true;
}

}  // namespace larkspan::adapters
