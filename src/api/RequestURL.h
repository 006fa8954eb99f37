#pragma once

#include <string>
#include <string_view>

namespace larkspan::api {

/// The URL of `path` under `base`; one leading "/" of the path is dropped. A path with a query is joined as text
/// and throws `APIError::invalidURL` if no URL comes of it; a path without one is escaped where it must be.
std::string requestURL(std::string_view base, std::string_view path);

/// `value` with everything escaped that may not stand in a query; text that is no UTF-8 stays as it is. Commas, and
/// the signs that part a query's fields, may stand there and are left alone.
std::string queryEscaped(std::string_view value);

}  // namespace larkspan::api
