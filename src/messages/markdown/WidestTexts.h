#pragma once

#include <cstddef>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "messages/markdown/MarkdownRow.h"

namespace larkspan::incidents {

/// The texts of a column that may be the widest when they are drawn. What a letter takes is roughly known here, so the
/// few that come first by that are kept, and measured where the font is.
class WidestTexts {
public:
    static constexpr std::size_t most = 32;

    using Text = MarkdownColumns::Text;

    void add(const MarkdownText& text, bool isHeader);

    /// The widest first.
    std::vector<Text> texts() const;

private:
    std::set<std::pair<std::size_t, Text>> texts_;
};

/// In quarters of a wide character, such as "語".
std::size_t roughWidth(std::string_view text);

}  // namespace larkspan::incidents
