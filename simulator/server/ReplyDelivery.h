#pragma once

#include "server/Connection.h"
#include "service/Exchange.h"

namespace larkspan::simulator {

/// Sends the answer to the request as its delivery says. False if the connection ends with it.
bool deliver(Reply reply, const Request& request, Connection& connection);

}  // namespace larkspan::simulator
