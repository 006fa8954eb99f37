#pragma once

namespace larkspan::adapters {

/// Whether the environment names a proxy for HTTPS: https_proxy or all_proxy, in lower or upper case.
bool environmentNamesProxy();

}  // namespace larkspan::adapters
