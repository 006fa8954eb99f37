#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace larkspan::adapters {

/// Reads from the head of an answer where the answer ends, line by line as libcurl delivers it. The head of an interim
/// answer is replaced by the next one; trailers count towards the size.
class ResponseHead {
public:
    /// Reads one line with its line end; a status line starts a new head.
    void read(std::string_view line);

    /// Whether the head is complete. libcurl takes an answer that breaks off before that for a complete one.
    bool isWhole() const { return isWhole_; }

    /// Whether the answer says where its body ends; if not, it ends with the connection.
    bool tellsLength() const { return tellsLength_; }

    /// Whether the head is no larger than any honest answer needs, and does not state two different lengths: the end of
    /// its body would then be ambiguous.
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
