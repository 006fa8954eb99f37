#pragma once

#include <chrono>

#include "platform/HttpTransport.h"
#include "service/Exchange.h"

namespace larkspan::simulator {

/// The time from the request at which a client has the complete reply, and the client's result.
struct Arrival {
    std::chrono::milliseconds after;
    platform::HttpTransport::Result result;
};

/// The client waits 30 seconds for a byte and `timeout` for the whole, and accepts bodies of up to 64 MiB.
Arrival arrival(Reply reply, std::chrono::milliseconds timeout);

}  // namespace larkspan::simulator
