#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace larkspan::simulator {

/// `text` followed by `blanks` blanks, as a gzip stream.
std::string packed(std::string_view text, std::uint64_t blanks);

}  // namespace larkspan::simulator
