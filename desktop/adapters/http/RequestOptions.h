#pragma once

#include <curl/curl.h>

#include <string>
#include <string_view>
#include <utility>

#include "adapters/http/CurlHandles.h"
#include "platform/HttpTransport.h"

namespace larkspan::adapters {

/// Whether `request` only reads, so that sending it again changes nothing.
bool isRead(const platform::HttpRequest& request);

/// Whether the name of `header` is `lowerCaseName`, in any case.
bool isNamed(const std::pair<std::string, std::string>& header, std::string_view lowerCaseName);

/// Whether `request` can be sent as it is: over HTTPS, and without a character in its method or headers that would end
/// its line.
bool canBeSent(const platform::HttpRequest& request);

/// Makes `transfer` send exactly `request`, over HTTP/1.1: its method, its headers and those that the protocol itself
/// needs, its body. `request` and the returned list must outlive the transfer.
[[nodiscard]] HeaderList setRequest(CURL* transfer, const platform::HttpRequest& request);

}  // namespace larkspan::adapters
