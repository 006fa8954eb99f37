#pragma once

#include <optional>
#include <string>

#include "platform/HttpTransport.h"

namespace larkspan::adapters {

/// The request with which `request` goes on after a redirect to `location`, an absolute URL. Absent where the redirect
/// is itself the answer: it leaves the origin (scheme, host and port), names a user, or would have a write made anew
/// without saying that it was not made yet. 307 and 308 say so and get the write at the new place; after 303, which
/// says that the write was made, the result is read; 301 and 302 say neither.
std::optional<platform::HttpRequest> afterRedirect(
    const platform::HttpRequest& request, int status, const std::string& location);

}  // namespace larkspan::adapters
