#pragma once

#include <string>
#include <string_view>

namespace larkspan::model {

/// A wire key as the key name that it stands for: `created_at` is `createdAt`. Underscores at either end stay, and what
/// is one word stays as it is. The answer is a view of `wireKey` or of `buffer`. Letters beyond ASCII keep their case.
std::string_view fromSnakeCase(std::string_view wireKey, std::string& buffer);

/// A key name as it goes on the wire: `statusPageId` is `status_page_id`.
std::string toSnakeCase(std::string_view keyName);

}  // namespace larkspan::model
