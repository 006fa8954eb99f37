#pragma once

#include <curl/curl.h>

#include "platform/URLError.h"

namespace larkspan::adapters {

/// What a transfer that ended with `result`, which is not success, means to the client.
platform::URLError::Code transferFailure(CURL* transfer, CURLcode result);

}  // namespace larkspan::adapters
