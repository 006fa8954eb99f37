#pragma once

#include <optional>
#include <string>

#include "platform/HttpTransport.h"

namespace larkspan::adapters {

/// The request that follows `request` after a redirect to `location`, an absolute URL. Empty if the redirect is not to
/// be followed: it leaves the origin (scheme, host and port), names a user, or would repeat a write without saying that
/// it has not been made. 307 and 308 say so, and the write is sent to the new place; 303 says that the write was made,
/// and its result is read; 301 and 302 say neither.
std::optional<platform::HttpRequest> afterRedirect(
    const platform::HttpRequest& request, int status, const std::string& location);

}  // namespace larkspan::adapters
