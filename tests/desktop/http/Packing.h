#pragma once

#include <string>

namespace larkspan::adapters {

/// `text` as Content-Encoding gzip has it.
std::string gzip(const std::string& text);

}  // namespace larkspan::adapters
