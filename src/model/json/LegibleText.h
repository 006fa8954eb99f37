#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace larkspan::model {

/// `text`, valid UTF-8 from the service, made fit for a sentence: control characters become U+FFFD, and a text longer
/// than `limit` bytes is cut between two characters and ends in an ellipsis.
std::string legible(std::string_view text, std::size_t limit);

}  // namespace larkspan::model
