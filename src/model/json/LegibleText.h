#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace larkspan::model {

/// `text`, which the service sent and is valid UTF-8, fit to stand in a sentence: control characters become U+FFFD, and
/// after `limit` bytes at the latest it is cut between two characters and ends in an ellipsis.
std::string legible(std::string_view text, std::size_t limit);

}  // namespace larkspan::model
