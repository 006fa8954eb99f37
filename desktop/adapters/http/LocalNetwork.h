#pragma once

namespace larkspan::adapters {

/// Whether the computer has an address that leads beyond itself.
bool hasNetwork();

}  // namespace larkspan::adapters
