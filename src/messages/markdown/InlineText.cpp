#include "messages/markdown/InlineText.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include <md4c.h>

#include "messages/markdown/CharacterReference.h"

namespace larkspan::messages {

namespace {

/// Longer than any body that is accepted. The counters of md4c allow far more.
constexpr std::size_t longestText = 64 * 1024 * 1024;
constexpr std::string_view replacementCharacter = "\uFFFD";

/// md4c reads whole documents. It is given the text as one line that starts with a vertical tab, with vertical tabs for
/// line ends: such a line starts no block and is not trimmed, and delimiters count as being next to white space. Each
/// character keeps its offset, so what md4c returns is found in the text itself.
class DisguisedText {
public:
    explicit DisguisedText(std::string_view text)
        : text_(text)
    {
        line_.reserve(text.size() + 2);
        line_ += disguise;
        line_ += text;
        std::ranges::replace_if(line_, [](char character) { return character == '\n' || character == '\r'; }, disguise);
        if (text.ends_with(' ')) line_ += disguise;
    }

    std::string_view line() const { return line_; }

    /// The part of the text at the offsets of `part`, a view into `line()`.
    std::string_view original(std::string_view part) const
    {
        const auto begin = static_cast<std::size_t>(part.data() - line_.data());
        const auto first = std::max<std::size_t>(begin, 1) - 1;
        const auto last = std::min(begin + part.size() - 1, text_.size());
        return text_.substr(first, last - first);
    }

private:
    static constexpr char disguise = '\v';

    std::string_view text_;
    std::string line_;
};

/// Collects the runs that md4c reports.
class RunCollector {
public:
    explicit RunCollector(std::string_view text)
        : disguised_(text)
    {
        found_.text.reserve(text.size());
    }

    bool read()
    {
        MD_PARSER parser{};
        parser.flags
            = MD_FLAG_NOINDENTEDCODEBLOCKS | MD_FLAG_NOHTMLBLOCKS | MD_FLAG_NOHTMLSPANS | MD_FLAG_STRIKETHROUGH;
        parser.enter_block = [](MD_BLOCKTYPE, void*, void*) { return 0; };
        parser.leave_block = [](MD_BLOCKTYPE, void*, void*) { return 0; };
        parser.enter_span = [](MD_SPANTYPE type, void* detail, void* self) {
            static_cast<RunCollector*>(self)->enter(type, detail);
            return 0;
        };
        parser.leave_span = [](MD_SPANTYPE type, void*, void* self) {
            static_cast<RunCollector*>(self)->leave(type);
            return 0;
        };
        parser.text = [](MD_TEXTTYPE type, const MD_CHAR* text, MD_SIZE size, void* self) {
            static_cast<RunCollector*>(self)->add(type, {text, size});
            return 0;
        };
        const auto line = disguised_.line();
        return md_parse(line.data(), static_cast<MD_SIZE>(line.size()), &parser, this) == 0;
    }

    InlineText take() && { return std::move(found_); }

private:
    void enter(MD_SPANTYPE type, const void* detail)
    {
        if (type == MD_SPAN_IMG) ++images_;
        if (images_ > 0) return;
        ++depth_[type];
        if (type == MD_SPAN_A) {
            link_ = found_.destinations.size();
            found_.destinations.push_back(destinationOf(static_cast<const MD_SPAN_A_DETAIL*>(detail)->href));
        }
    }

    void leave(MD_SPANTYPE type)
    {
        if (images_ == 0) {
            --depth_[type];
            if (type == MD_SPAN_A) link_.reset();
        }
        if (type == MD_SPAN_IMG) --images_;
    }

    void add(MD_TEXTTYPE type, std::string_view part)
    {
        switch (type) {
        case MD_TEXT_NULLCHAR: append(replacementCharacter); break;
        case MD_TEXT_ENTITY: append(decodedCharacterReference(part)); break;
        case MD_TEXT_CODE: addCode(disguised_.original(part)); break;
        default: addNormal(disguised_.original(part)); break;
        }
    }

    /// A backslash before a line end makes the break a hard one and is not shown. An escaped backslash is reported
    /// alone.
    void addNormal(std::string_view text)
    {
        for (std::size_t at = 0; (at = text.find('\\', at)) != std::string_view::npos;) {
            if (at + 1 < text.size() && (text[at + 1] == '\n' || text[at + 1] == '\r')) {
                append(text.substr(0, at));
                text.remove_prefix(at + 1);
                at = 0;
            } else {
                ++at;
            }
        }
        append(text);
    }

    /// md4c reports a NUL separately, but not within code.
    void addCode(std::string_view text)
    {
        for (auto at = text.find('\0'); at != std::string_view::npos; at = text.find('\0')) {
            append(text.substr(0, at));
            append(replacementCharacter);
            text.remove_prefix(at + 1);
        }
        append(text);
    }

    void append(std::string_view text)
    {
        if (text.empty()) return;
        const InlineStyles styles{
            depth_[MD_SPAN_EM] > 0, depth_[MD_SPAN_STRONG] > 0, depth_[MD_SPAN_CODE] > 0, depth_[MD_SPAN_DEL] > 0};
        auto& runs = found_.runs;
        if (runs.empty() || runs.back().styles != styles || runs.back().link != link_)
            runs.push_back({0, styles, link_});
        runs.back().length += text.size();
        found_.text += text;
    }

    static std::string destinationOf(const MD_ATTRIBUTE& attribute)
    {
        std::string destination;
        for (std::size_t part = 0; attribute.substr_offsets[part] < attribute.size; ++part) {
            const auto begin = attribute.substr_offsets[part];
            const std::string_view text(attribute.text + begin, attribute.substr_offsets[part + 1] - begin);
            switch (attribute.substr_types[part]) {
            case MD_TEXT_NULLCHAR: destination += replacementCharacter; break;
            case MD_TEXT_ENTITY: destination += decodedCharacterReference(text); break;
            default: destination += text; break;
            }
        }
        return destination;
    }

    DisguisedText disguised_;
    InlineText found_;
    int depth_[MD_SPAN_U + 1] = {};
    int images_ = 0;
    std::optional<std::size_t> link_;
};

InlineText verbatim(std::string text)
{
    InlineText found{std::move(text), {}, {}};
    if (!found.text.empty()) found.runs.push_back({found.text.size()});
    return found;
}

/// The bytes with which markup starts, and NUL.
constexpr auto markupBytes = [] {
    std::array<bool, 256> markup{};
    for (const char byte : {'\\', '*', '_', '~', '`', '[', '<', '&', '\0'})
        markup[static_cast<unsigned char>(byte)] = true;
    return markup;
}();

bool mayHoldMarkup(std::string_view text)
{
    return std::ranges::any_of(text, [](unsigned char byte) { return markupBytes[byte]; });
}

}  // namespace

InlineText inlineMarkdownText(std::string text)
{
    if (text.size() > longestText || !mayHoldMarkup(text)) return verbatim(std::move(text));
    RunCollector runs(text);
    return runs.read() ? std::move(runs).take() : verbatim(std::move(text));
}

}  // namespace larkspan::messages
