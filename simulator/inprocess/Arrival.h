#pragma once

#include <chrono>

#include "platform/HttpTransport.h"
#include "service/Exchange.h"

namespace larkspan::simulator {

/// When a reply is through to the client, counted from the request, and what the client makes of it.
struct Arrival {
    std::chrono::milliseconds after;
    platform::HttpTransport::Result result;
};

/// The client waits 30 seconds for a byte and `timeout` for the whole, and takes bodies up to 64 MiB.
Arrival arrival(Reply reply, std::chrono::milliseconds timeout);

}  // namespace larkspan::simulator
