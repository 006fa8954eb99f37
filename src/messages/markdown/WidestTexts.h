#pragma once

#include <cstddef>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "messages/markdown/MarkdownRow.h"

namespace larkspan::messages {

/// Keeps the texts of a column that may be the widest when drawn. The width of letters is known only roughly here, so
/// the few widest by that estimate are kept, to be measured with the font.
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

/// The estimated width, in quarters of a wide character such as "語".
std::size_t roughWidth(std::string_view text);

}  // namespace larkspan::messages
