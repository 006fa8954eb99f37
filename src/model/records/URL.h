#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace larkspan::model {

/// A text that is a valid URL: a URI reference by RFC 3986, absolute or relative, not empty, in which letters beyond
/// ASCII count as unreserved (RFC 3987). The text is kept unchanged.
class URL {
public:
    /// The URL in `text`; empty if it is not valid.
    static std::optional<URL> parse(std::string_view text);

    const std::string& text() const { return text_; }

    /// The host without port and brackets; empty if the URL names none.
    std::string_view host() const { return std::string_view(text_).substr(hostBegin_, hostLength_); }

    bool operator==(const URL&) const = default;

private:
    explicit URL(std::string_view text, std::string_view host);

    std::string text_;
    std::size_t hostBegin_ = 0;
    std::size_t hostLength_ = 0;
};

}  // namespace larkspan::model
