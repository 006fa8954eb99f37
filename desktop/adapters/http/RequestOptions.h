#pragma once

#include <curl/curl.h>

#include <string>
#include <string_view>
#include <utility>

#include "adapters/http/CurlHandles.h"
#include "platform/HttpTransport.h"

namespace larkspan::adapters {

/// Whether a request only reads, so that sending it again changes nothing.
bool isRead(const platform::HttpRequest& request);

/// Whether a header has the name given in lower case.
bool isNamed(const std::pair<std::string, std::string>& header, std::string_view lowerCaseName);

/// Whether `request` can go out as it stands: over HTTPS, and with nothing in its method or headers that would
/// break out of its line.
bool canBeSent(const platform::HttpRequest& request);

/// Makes `transfer` send exactly `request`, over HTTP/1.1: its method, its headers and those that the protocol itself
/// needs, its body. `request` and the list given back must outlive the transfer.
[[nodiscard]] HeaderList setRequest(CURL* transfer, const platform::HttpRequest& request);

}  // namespace larkspan::adapters
