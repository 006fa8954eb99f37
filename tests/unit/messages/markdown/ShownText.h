#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "messages/markdown/MarkdownText.h"
#include "support/Trimming.h"
#include "support/Utf8.h"

namespace larkspan::messages {

/// Reads styled text as it would be shown, to check it.
class ShownText {
public:
    /// The visible text: blanks are spaces and breaks are line feeds. Empty if there is markup other than the writer's
    /// own, if tags do not nest, or if a link has no destination.
    static std::optional<std::string> of(const MarkdownText& text)
    {
        ShownText shown(text);
        while (!shown.rest_.empty()) {
            if (!shown.takeTag() && !shown.takeReference() && !shown.takeCharacter()) return std::nullopt;
        }
        if (!shown.open_.empty()) return std::nullopt;
        return shown.seen_;
    }

    /// The visible text of a plain text, in the same form.
    static std::string ofPlain(std::string_view plain)
    {
        std::string seen;
        while (!plain.empty()) {
            const auto [code, length] = support::firstCharacter(plain);
            if (support::isLineEnd(code))
                seen += '\n';
            else if (support::isBlank(code))
                seen.append(code == U'\t' ? 4 : 1, ' ');
            else if (code < U' ' || (code >= 0x7F && code < 0xA0) || code == U'\uFFFC' || code == U'\uFFFD')
                seen += "\uFFFD";
            else if (!isInvisible(code))
                seen += plain.substr(0, length);
            plain.remove_prefix(length);
        }
        return seen;
    }

private:
    explicit ShownText(const MarkdownText& text)
        : rest_(text.styled)
        , links_(text.links.size())
    {
    }

    /// The characters that a link may not contain, those that isolate it, and the one that the writer inserts for a
    /// break.
    static bool isInvisible(char32_t code)
    {
        return code == U'\u200B' || (code >= U'\u202A' && code <= U'\u202E')
            || (code >= U'\u2066' && code <= U'\u2069');
    }

    bool take(std::string_view word)
    {
        if (!rest_.starts_with(word)) return false;
        rest_.remove_prefix(word.size());
        return true;
    }

    bool takeTag()
    {
        if (take("<br>")) {
            seen_ += '\n';
            return true;
        }
        for (const std::string_view tag : {"<b>", "<i>", "<s>", "<font size=\"2\">"}) {
            if (!take(tag)) continue;
            open_.emplace_back(tag.substr(1, tag.find_first_of(" >") - 1));
            return true;
        }
        if (nextLink_ < links_ && take("<a href=\"" + std::to_string(nextLink_) + "\">\u2068")) {
            ++nextLink_;
            open_.emplace_back("a");
            return true;
        }
        if (open_.empty() || !take((open_.back() == "a" ? "\u2069</" : "</") + open_.back() + '>')) return false;
        open_.pop_back();
        return true;
    }

    bool takeReference()
    {
        constexpr std::pair<std::string_view, char> references[]
            = {{"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}, {"&#39;", '\''}, {"&nbsp;", ' '}};
        for (const auto& [reference, character] : references) {
            if (!take(reference)) continue;
            seen_ += character;
            return true;
        }
        return false;
    }

    bool takeCharacter()
    {
        const auto [code, length] = support::firstCharacter(rest_);
        const bool isOutsideLinks = open_.empty() || open_.front() != "a";
        const bool isBidirectional = isInvisible(code) && code != U'\u200B';
        if (code < U' ' || std::string_view("<>&\"'").find(rest_.front()) != std::string_view::npos) return false;
        if (isBidirectional && !isOutsideLinks) return false;
        if (!isInvisible(code)) seen_ += rest_.substr(0, length);
        rest_.remove_prefix(length);
        return true;
    }

    std::string_view rest_;
    std::size_t links_;
    std::size_t nextLink_ = 0;
    std::vector<std::string> open_;
    std::string seen_;
};

}  // namespace larkspan::messages
