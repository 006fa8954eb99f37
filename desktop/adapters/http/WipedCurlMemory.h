#pragma once

#include <curl/curl.h>

namespace larkspan::adapters {

/// As `curl_global_init`, but libcurl, which holds the key in each request's headers, overwrites its memory when it
/// releases it.
CURLcode initialiseCurlWithWipedMemory();

}  // namespace larkspan::adapters
