#pragma once

#include <string>

namespace larkspan::adapters {

/// `text` in the Content-Encoding gzip.
std::string gzip(const std::string& text);

}  // namespace larkspan::adapters
