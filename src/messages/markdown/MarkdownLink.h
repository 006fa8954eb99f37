#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace larkspan::messages {

/// A destination that may be opened, and the place to which it really leads: its host, or the address of a mail.
struct MarkdownLink {
    std::string destination;
    std::string host;

    bool operator==(const MarkdownLink&) const = default;

    /// Empty if `destination` is not a plain link to a host (http, https) or to one address (mailto). User names and
    /// escapes in the host are refused, since they only serve to disguise it, and so are links too long for browsers.
    /// Headers of a mail are dropped: they could add recipients and files.
    static std::optional<MarkdownLink> parse(std::string_view destination);
};

}  // namespace larkspan::messages
