#pragma once

#include <string>
#include <string_view>

namespace larkspan::model {

/// The key name of a wire key: `created_at` gives `createdAt`. Underscores at either end are kept, and a single word is
/// not changed. Returns a view of `wireKey` or of `buffer`. Letters beyond ASCII keep their case.
std::string_view fromSnakeCase(std::string_view wireKey, std::string& buffer);

/// The wire key of a key name: `statusPageId` gives `status_page_id`.
std::string toSnakeCase(std::string_view keyName);

}  // namespace larkspan::model
