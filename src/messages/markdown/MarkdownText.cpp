#include "messages/markdown/MarkdownText.h"

#include <algorithm>
#include <string_view>

#include "messages/markdown/StyledText.h"
#include "messages/markdown/TextPieces.h"
#include "support/Trimming.h"
#include "support/Utf8.h"

namespace larkspan::messages {

namespace {

std::size_t lengthWithoutLineEnd(std::string_view text)
{
    if (text.empty()) return 0;
    const auto last = support::lastCharacter(text);
    return text.size() - (support::isLineEnd(last.code) ? last.length : 0);
}

/// Iterates over a text's runs and styles the text.
class PieceReader {
public:
    explicit PieceReader(const InlineText& text)
        : run_(text.runs.begin())
    {
        links_.reserve(text.destinations.size());
        for (const auto& destination : text.destinations) links_.push_back(MarkdownLink::parse(destination));
    }

    /// The next piece, with the plain text `plain`, of which the first `shown` bytes are shown.
    MarkdownText read(std::string plain, std::size_t shown)
    {
        MarkdownText piece{{}, std::move(plain), {}};
        StyledTextWriter writer(shown);
        std::optional<std::size_t> link;
        for (auto rest = std::string_view(piece.plain); !rest.empty();) {
            const auto length = std::min(run_->length - passed_, rest.size());
            const auto seen = rest.substr(0, std::min(length, shown));
            if (!seen.empty()) {
                const auto* const target = linkOf(*run_);
                if (target && link != run_->link) piece.links.push_back(*target);
                link = run_->link;
                writer.add(seen, run_->styles, target ? std::optional(piece.links.size() - 1) : std::nullopt);
            }
            pass(length);
            rest.remove_prefix(length);
            shown -= seen.size();
        }
        piece.styled = std::move(writer).take();
        return piece;
    }

private:
    /// Null for a text that leads nowhere, or to no address.
    const MarkdownLink* linkOf(const InlineRun& run) const
    {
        if (!run.link) return nullptr;
        const auto& link = links_[*run.link];
        return link ? &*link : nullptr;
    }

    void pass(std::size_t length)
    {
        passed_ += length;
        if (passed_ < run_->length) return;
        passed_ = 0;
        ++run_;
    }

    std::vector<std::optional<MarkdownLink>> links_;
    std::vector<InlineRun>::const_iterator run_;
    /// The number of bytes of the current run that have been read.
    std::size_t passed_ = 0;
};

}  // namespace

std::vector<MarkdownText> MarkdownText::piecesOf(InlineText text)
{
    const auto size = text.text.size();
    std::vector<MarkdownText> pieces;
    PieceReader reader(text);
    std::size_t begin = 0;
    do {
        const auto end = begin + firstPieceEnd(std::string_view(text.text).substr(begin));
        auto piece = end - begin == size ? std::move(text.text) : text.text.substr(begin, end - begin);
        const auto shown = end == size ? piece.size() : lengthWithoutLineEnd(piece);
        pieces.push_back(reader.read(std::move(piece), shown));
        begin = end;
    } while (begin < size);
    return pieces;
}

}  // namespace larkspan::messages
