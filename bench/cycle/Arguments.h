#pragma once

#include <charconv>
#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <string>

namespace larkspan::bench {

/// An integer from the command line; throws with a sentence.
inline std::size_t number(const char* text)
{
    std::size_t value = 0;
    const auto* const end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, value);
    if (error != std::errc{} || stop != end) throw std::runtime_error(std::string(text) + " is no number");
    return value;
}

}  // namespace larkspan::bench
