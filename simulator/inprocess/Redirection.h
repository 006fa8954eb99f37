#pragma once

#include "platform/HttpTransport.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// Has the service answer a request, its redirects followed within its origin, ten at most. The last answer comes back;
/// its delay is that of all answers together.
Reply answerWithRedirects(Service& service, const platform::HttpRequest& request);

}  // namespace larkspan::simulator
