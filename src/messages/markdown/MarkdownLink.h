#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace larkspan::incidents {

/// A destination that may be opened, and in words where it really leads: its host, or the address that a mail goes to.
struct MarkdownLink {
    std::string destination;
    std::string host;

    bool operator==(const MarkdownLink&) const = default;

    /// Absent for what is no plain link to a host (http, https) or to one address (mailto). That includes user names
    /// and escapes in the host's place, which only serve to make it look like another, and what no browser takes for
    /// its length. Headers of a mail are dropped: they could add recipients and files.
    static std::optional<MarkdownLink> parse(std::string_view destination);
};

}  // namespace larkspan::incidents
