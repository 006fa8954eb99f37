#pragma once

#include <string>

#include "Authority.h"
#include "server/AuthorityStore.h"

namespace larkspan::campaign {

/// The authority of the servers that answer with raw bytes, and that of the simulator; the clients trust both.
const adapters::Authority& authority();
const simulator::Identity& simulatorsAuthority();

/// The file of what the clients trust.
const std::string& bundle();

/// The certificate of the service at 127.0.0.1.
const adapters::Identity& identity();

}  // namespace larkspan::campaign
