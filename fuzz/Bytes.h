#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace larkspan::fuzz {

/// Reads choices and texts from an input; behind its end all are zero or empty.
class Bytes {
public:
    explicit Bytes(std::string_view input)
        : rest_(input)
    {
    }

    bool atEnd() const { return rest_.empty(); }

    std::uint8_t byte()
    {
        if (rest_.empty()) return 0;
        const auto first = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return first;
    }

    bool coin() { return byte() % 2 == 1; }

    std::size_t below(std::size_t count) { return byte() % count; }

    std::uint64_t number()
    {
        std::uint64_t number = 0;
        for (int count = 0; count < 8; ++count) number = number << 8 | byte();
        return number;
    }

    /// Up to the next byte 0xFF, which no valid text has.
    std::string_view text()
    {
        const auto end = std::min(rest_.find('\xFF'), rest_.size());
        const auto text = rest_.substr(0, end);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        return text;
    }

private:
    std::string_view rest_;
};

}  // namespace larkspan::fuzz
