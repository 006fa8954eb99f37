// Reads texts from standard input, each ended by a NUL, and writes the results of inlineMarkdownText as HTML, ended in
// the same way. Each run has its own tags.

#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

#include "messages/markdown/InlineText.h"

namespace {

using namespace larkspan::messages;

std::string escaped(std::string_view text)
{
    std::string html;
    for (const char byte : text) {
        switch (byte) {
        case '&': html += "&amp;"; break;
        case '<': html += "&lt;"; break;
        case '>': html += "&gt;"; break;
        case '"': html += "&quot;"; break;
        default: html += byte;
        }
    }
    return html;
}

std::string htmlOf(const InlineText& text)
{
    std::string html;
    std::size_t begin = 0;
    for (const auto& run : text.runs) {
        auto piece = escaped(std::string_view(text.text).substr(begin, run.length));
        begin += run.length;
        const auto wrap = [&piece](const std::string& tag) { piece = '<' + tag + '>' + piece + "</" + tag + '>'; };
        if (run.styles.isCode) wrap("code");
        if (run.styles.isStruckThrough) wrap("del");
        if (run.styles.isEmphasised) wrap("em");
        if (run.styles.isStrong) wrap("strong");
        if (run.link) piece = "<a href=\"" + escaped(text.destinations[*run.link]) + "\">" + piece + "</a>";
        html += piece;
    }
    return html;
}

}  // namespace

int main()
{
    const std::string input(std::istreambuf_iterator<char>(std::cin), {});
    for (std::size_t begin = 0; begin < input.size();) {
        const auto end = input.find('\0', begin);
        std::cout << htmlOf(inlineMarkdownText(input.substr(begin, end - begin))) << '\0';
        begin = end == std::string::npos ? input.size() : end + 1;
    }
    return 0;
}
