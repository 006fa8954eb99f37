#include "messages/markdown/StyledText.h"

#include <algorithm>
#include <array>

#include "messages/markdown/TextPieces.h"
#include "support/Trimming.h"
#include "support/Utf8.h"

namespace larkspan::messages {

namespace {

constexpr std::size_t longestUnbroken = 200;
constexpr std::string_view zeroWidthSpace = "\u200B";
constexpr std::string_view noBreakSpace = "&nbsp;";
constexpr std::string_view replacementCharacter = "\uFFFD";
constexpr int tabWidth = 4;
// U+2068 isolates text with its own direction; U+2069 ends the isolation.
constexpr std::string_view isolate = "\u2068";
constexpr std::string_view isolateEnd = "\u2069";

/// Letters and other bytes that have no meaning for StyledText but themselves.
constexpr auto plainBytes = [] {
    std::array<bool, 256> plain{};
    for (std::size_t byte = '!'; byte <= '~'; ++byte) plain[byte] = true;
    for (const char byte : {'<', '>', '&', '"', '\''}) plain[static_cast<unsigned char>(byte)] = false;
    return plain;
}();

bool changesDirection(char32_t character)
{
    return (character >= U'\u202A' && character <= U'\u202E') || (character >= U'\u2066' && character <= U'\u2069');
}

/// U+FFFC represents an embedded object, which does not occur here.
bool isUnshowable(char32_t character)
{
    return character < U' ' || (character >= 0x7F && character < 0xA0) || character == U'\uFFFC';
}

std::string_view escaped(char32_t character, std::string_view bytes)
{
    switch (character) {
    case U'<': return "&lt;";
    case U'>': return "&gt;";
    case U'&': return "&amp;";
    case U'"': return "&quot;";
    case U'\'': return "&#39;";
    case U'\uFFFD': return replacementCharacter;
    default: return isUnshowable(character) ? replacementCharacter : bytes;
    }
}

}  // namespace

StyledTextWriter::StyledTextWriter(std::size_t length)
{
    text_.reserve(length + length / 8);
}

void StyledTextWriter::add(std::string_view text, InlineStyles styles, std::optional<std::size_t> link)
{
    enterLink(link);
    if (styles.isStrong) text_ += "<b>";
    if (styles.isEmphasised) text_ += "<i>";
    if (styles.isStruckThrough) text_ += "<s>";
    if (styles.isCode) text_ += "<font size=\"2\">";
    addCharacters(text);
    if (styles.isCode) text_ += "</font>";
    if (styles.isStruckThrough) text_ += "</s>";
    if (styles.isEmphasised) text_ += "</i>";
    if (styles.isStrong) text_ += "</b>";
}

std::string StyledTextWriter::take() &&
{
    enterLink(std::nullopt);
    return std::move(text_);
}

void StyledTextWriter::enterLink(std::optional<std::size_t> link)
{
    if (link == link_) return;
    if (link_) text_.append(isolateEnd).append("</a>");
    if (link) text_.append("<a href=\"").append(std::to_string(*link)).append("\">").append(isolate);
    link_ = link;
}

void StyledTextWriter::addCharacters(std::string_view text)
{
    while (!text.empty()) {
        text.remove_prefix(addPlainBytes(text));
        if (text.empty()) return;
        const auto character = support::firstCharacter(text);
        addCharacter(character.code, text.substr(0, character.length));
        text.remove_prefix(character.length);
    }
}

/// Most texts are words with single blanks between them, which need no escaping; they are added at once.
std::size_t StyledTextWriter::addPlainBytes(std::string_view text)
{
    std::size_t length = 0;
    for (; length < text.size(); ++length) {
        const auto byte = static_cast<unsigned char>(text[length]);
        if (plainBytes[byte] && unbroken_ < longestUnbroken) {
            ++unbroken_;
            isFolding_ = false;
        } else if (byte == ' ' && !isFolding_) {
            unbroken_ = 0;
            isFolding_ = true;
        } else {
            break;
        }
    }
    if (length > 0) before_ = static_cast<unsigned char>(text[length - 1]);
    text_ += text.substr(0, length);
    return length;
}

void StyledTextWriter::addCharacter(char32_t character, std::string_view bytes)
{
    if (support::isLineEnd(character)) return addLineEnd();
    if (link_ && changesDirection(character)) return;
    const bool isFixedBlank = character == U'\u00A0' || character == U'\u202F';
    if (support::isBlank(character) && !isFixedBlank) {
        for (auto count = character == U'\t' ? tabWidth : 1; count > 0; --count) addBlank();
        return;
    }
    if (unbroken_ == longestUnbroken && areDrawnApart(before_, character)) {
        text_ += zeroWidthSpace;
        unbroken_ = 0;
    }
    text_ += isFixedBlank ? noBreakSpace : escaped(character, bytes);
    unbroken_ = std::min(unbroken_ + 1, longestUnbroken);
    before_ = character;
    isFolding_ = false;
}

void StyledTextWriter::addBlank()
{
    text_ += isFolding_ ? noBreakSpace : " ";
    if (!isFolding_) unbroken_ = 0;
    isFolding_ = !isFolding_;
    before_ = U' ';
}

void StyledTextWriter::addLineEnd()
{
    text_ += "<br>";
    unbroken_ = 0;
    isFolding_ = true;
    before_ = U'\n';
}

}  // namespace larkspan::messages
