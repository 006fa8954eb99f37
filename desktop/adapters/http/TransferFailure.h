#pragma once

#include <curl/curl.h>

#include "platform/URLError.h"

namespace larkspan::adapters {

/// The client's error for a transfer that ended with `result`, which is not `CURLE_OK`.
platform::URLError::Code transferFailure(CURL* transfer, CURLcode result);

}  // namespace larkspan::adapters
