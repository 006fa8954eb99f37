#pragma once

#include "platform/HttpTransport.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// Sends a request to the service and follows redirects within its origin, ten at most. Returns the last answer; its
/// delay is the sum of all delays.
Reply answerWithRedirects(Service& service, const platform::HttpRequest& request);

}  // namespace larkspan::simulator
