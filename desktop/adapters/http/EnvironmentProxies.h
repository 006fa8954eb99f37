#pragma once

namespace larkspan::adapters {

/// Whether the environment names a proxy for HTTPS, as https_proxy or all_proxy in either case.
bool environmentNamesProxy();

}  // namespace larkspan::adapters
