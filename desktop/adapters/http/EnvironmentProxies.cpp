#include "adapters/http/EnvironmentProxies.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace larkspan::adapters {

bool environmentNamesProxy()
{
    constexpr std::array names{"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"};
    return std::ranges::any_of(names, [](const char* name) {
        const auto* value = std::getenv(name);
        return value && *value != '\0';
    });
}

}  // namespace larkspan::adapters
