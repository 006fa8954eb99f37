#pragma once

#include "server/Connection.h"
#include "service/Exchange.h"

namespace larkspan::simulator {

/// Sends the reply as its delivery says. Returns false if the connection ends with it.
bool deliver(Reply reply, const Request& request, Connection& connection);

}  // namespace larkspan::simulator
