#pragma once

#include <string>
#include <string_view>

namespace larkspan::api {

/// The URL of `path` under `base`; one leading "/" of the path is dropped. A path with a query is appended as text, and
/// throws `APIError::invalidURL` if the result is not a URL; a path without a query is escaped where necessary.
std::string requestURL(std::string_view base, std::string_view path);

/// `value` with every character escaped that a query may not contain; text that is not UTF-8 is not changed. Commas,
/// and the characters that separate a query's fields, are allowed there and not escaped.
std::string queryEscaped(std::string_view value);

}  // namespace larkspan::api
