#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <random>

#include "messages/markdown/MarkdownBlock.h"
#include "messages/markdown/ShownText.h"
#include "messages/markdown/StatusMarkdownContent.h"
#include "messages/markdown/TextPieces.h"
#include "support/Utf8.h"

namespace larkspan::messages {

namespace {

using namespace std::string_literals;

/// A source of about `size` bytes: one text repeated, then another.
struct Hostile {
    std::string first;
    std::string second = {};

    std::string source(std::size_t size) const
    {
        std::string text;
        const auto half = second.empty() ? size : size / 2;
        while (text.size() < half) text += first;
        while (text.size() < size) text += second;
        return text;
    }
};

void PrintTo(const Hostile& hostile, std::ostream* out)
{
    *out << testing::PrintToString(hostile.first + hostile.second);
}

std::clock_t processorTime(const std::string& source)
{
    const StatusMarkdownContent content(source);
    const auto begin = std::clock();
    EXPECT_LE(content.rows().rows.size(), source.size());
    return std::clock() - begin;
}

class HostileMarkdown : public testing::TestWithParam<Hostile> {};

/// Eight times the text takes eight times the work in linear time, and 64 times in quadratic time; less than a
/// hundredth of a second passes in any case. On a machine that is
/// busy with other things, many tries fail in a row.
TEST_P(HostileMarkdown, TakesLinearTime)
{
    const auto small = GetParam().source(8'000);
    const auto large = GetParam().source(64'000);
    bool isLinear = false;
    for (int round = 0; round < 40 && !isLinear; ++round)
        isLinear = processorTime(large) < processorTime(small) * 28 + CLOCKS_PER_SEC / 100;
    EXPECT_TRUE(isLinear);
}

INSTANTIATE_TEST_SUITE_P(Blocks, HostileMarkdown,
    testing::Values(Hostile{"|"}, Hostile{"a |\n"}, Hostile{"a | b\n--\n"}, Hostile{"a|b\n---\n"},
        Hostile{"a|b\n", "---\n"}, Hostile{"a|", "\n---\n"}, Hostile{"a|", "\n---\n|"}, Hostile{"- a\n"},
        Hostile{"1. a\n"}, Hostile{"1"}, Hostile{">"}, Hostile{"> a\n"}, Hostile{"#"}, Hostile{"# a\n"}, Hostile{"a\n"},
        Hostile{"\n"}, Hostile{"\r\n"}, Hostile{" "}, Hostile{"\t", "a"}, Hostile{"\u3000"}));

INSTANTIATE_TEST_SUITE_P(Inline, HostileMarkdown,
    testing::Values(Hostile{"*"}, Hostile{"_"}, Hostile{"~"}, Hostile{"`"}, Hostile{"["}, Hostile{"]"}, Hostile{"<"},
        Hostile{"!["}, Hostile{"\\"}, Hostile{"\\\n"}, Hostile{"&a;"}, Hostile{"&#1;"}, Hostile{"a**a"}, Hostile{"~~a"},
        Hostile{"*a_b~c"}, Hostile{"*a ", "a* "}, Hostile{"**a ", "a* "}, Hostile{"*a _b ", "a* "}, Hostile{"[", "]"},
        Hostile{"[\n", "]\n"}, Hostile{"[", "](x)"}, Hostile{"![", "](x)"}, Hostile{"[a]\n"}, Hostile{"[a]("},
        Hostile{"[a](<b"}, Hostile{"[a](b \""}, Hostile{"[a](b 'c\n"}, Hostile{"[a](b (c"}, Hostile{"](a](b)"},
        Hostile{"`a``b```c"}, Hostile{"<a:"}, Hostile{"<a@b."}, Hostile{"<https://a.b> "}, Hostile{"[a](https://b.c) "},
        Hostile{"[*a* b](https://c.d)"}, Hostile{"[*a*", "](https://c.d)"}));

INSTANTIATE_TEST_SUITE_P(Shown, HostileMarkdown,
    testing::Values(Hostile{"a"}, Hostile{"\u0301"}, Hostile{"\U0001F1E6"}, Hostile{"👩\u200D"}, Hostile{"\u00A0"},
        Hostile{"\u202E"}, Hostile{"\xFF"}, Hostile{"\xE2\x80"}, Hostile{"\0"s}, Hostile{"'"}, Hostile{"a "}));

class RandomText {
public:
    std::string of(const std::vector<std::string>& pieces, std::size_t longest)
    {
        std::string text;
        for (auto count = below(longest + 1); count > 0; --count) text += pieces[below(pieces.size())];
        return text;
    }

private:
    std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }

    std::mt19937 random_{20'261'121};
};

const std::vector<std::string> anything{"a", "b ", " ", "\t", "\n", "\r", "\u2028", "\u00A0", "*", "**", "_", "~", "~~",
    "`", "``", "[", "]", "](", "(", ")", "<", ">", "!", "\\", "&", "&amp;", "&#10;", "&#x202E;", "#", "- ", "1. ", "|",
    "---", ":", "https://a.example/", "<b@c.example>", "\"", "'", "\0"s, "\u0301", "\u202E", "\u2069", "👩\u200D",
    "\x1b", "ä"};

std::string plainOf(const MarkdownRows& content)
{
    std::string text;
    for (const auto& row : content.rows) text += row.text.plain;
    return text;
}

TEST(AnyMarkdown, ShowsNoMarkupButItsOwnAndTheWordsOfItsPlainText)
{
    RandomText random;
    for (int round = 0; round < 3'000; ++round) {
        const auto source = random.of(anything, 40);
        const auto content = StatusMarkdownContent(source).rows();
        for (const auto& row : content.rows) {
            auto texts = row.cells;
            texts.push_back(row.text);
            for (const auto& text : texts) {
                EXPECT_TRUE(support::isValidUtf8(text.styled)) << source;
                EXPECT_EQ(ShownText::of(text), ShownText::ofPlain(text.plain)) << source;
            }
        }
    }
}

TEST(AnyMarkdown, KeepsEveryLetterInItsOrder)
{
    const std::vector<std::string> pieces{
        "a", "b", "c", " ", "\n", "*", "**", "_", "~~", "`", "``", "[", "]", "!", "<", ">", "\\", "ä", "€"};
    const auto lettersOf = [](std::string text) {
        std::erase_if(
            text, [](char byte) { return std::string_view(" \n*_~`[]!<>\\").find(byte) != std::string_view::npos; });
        return text;
    };
    RandomText random;
    for (int round = 0; round < 3'000; ++round) {
        const auto source = random.of(pieces, 60);
        EXPECT_EQ(lettersOf(inlineMarkdownText(source).text), lettersOf(source)) << source;
    }
}

TEST(AnyMarkdown, HasRunsThatCoverItDifferFromTheirNeighboursAndAreNotEmpty)
{
    RandomText random;
    for (int round = 0; round < 3'000; ++round) {
        const auto text = inlineMarkdownText(random.of(anything, 40));
        std::size_t length = 0;
        for (std::size_t index = 0; index < text.runs.size(); ++index) {
            const auto& run = text.runs[index];
            EXPECT_GT(run.length, 0u);
            EXPECT_LT(run.link.value_or(0), std::max<std::size_t>(text.destinations.size(), 1));
            if (index > 0) {
                const auto& before = text.runs[index - 1];
                EXPECT_TRUE(run.styles != before.styles || run.link != before.link);
            }
            length += run.length;
        }
        EXPECT_EQ(length, text.text.size());
    }
}

TEST(AnyMarkdown, IsPutTogetherAgainFromItsPieces)
{
    const std::vector<std::string> pieces{
        "word ", "*", "_a_ ", "\n", "👩\u200D", "\u0301", "longer words of a text", "[a](https://b.example)", "`c`"};
    RandomText random;
    for (int round = 0; round < 100; ++round) {
        auto source = "p" + random.of(pieces, 2'000);
        std::ranges::replace(source, '*', '.');
        const auto content = StatusMarkdownContent(source).rows();
        EXPECT_EQ(plainOf(content).find("\uFFFD"), std::string::npos);
        const auto blocks = parseMarkdownBlocks(source);
        std::string expected;
        for (const auto& block : blocks) expected += inlineMarkdownText(std::get<MarkdownParagraph>(block).text).text;
        EXPECT_EQ(plainOf(content), expected);
        for (const auto& row : content.rows) EXPECT_LE(row.text.plain.size(), longestPiece * 4);
    }
}

}  // namespace

}  // namespace larkspan::messages
