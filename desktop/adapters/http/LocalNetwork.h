#pragma once

namespace larkspan::adapters {

/// Whether the computer has an address other than its loopback ones.
bool hasNetwork();

}  // namespace larkspan::adapters
