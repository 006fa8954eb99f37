#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace larkspan::adapters {

/// What the head of an answer says about the answer's end, fed line by line as libcurl hands it out. An interim
/// answer's head gives way to the next one; trailers count towards the size.
class ResponseHead {
public:
    /// One line with its line end; the status line begins a new head.
    void read(std::string_view line);

    /// Whether its last line has come. libcurl takes an answer that breaks off before that for a whole one.
    bool isWhole() const { return isWhole_; }

    /// Whether the answer itself tells where its body ends; else it ends with the connection.
    bool tellsLength() const { return tellsLength_; }

    /// Whether it has no more bytes than any honest answer needs, and does not tell two lengths that differ: where its
    /// body ends could then be read in two ways, of which libcurl takes one.
    bool isAcceptable() const;

private:
    void readLength(std::string_view values);

    std::size_t size_ = 0;
    std::optional<std::string> length_;
    bool hasTwoLengths_ = false;
    bool isWhole_ = false;
    bool tellsLength_ = false;
};

}  // namespace larkspan::adapters
