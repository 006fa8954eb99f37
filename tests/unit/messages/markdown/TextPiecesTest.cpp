#include "messages/markdown/TextPieces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace larkspan::messages {

namespace {

using testing::ElementsAre;

std::string repeated(std::string_view text, std::size_t times)
{
    std::string answer;
    for (; times > 0; --times) answer += text;
    return answer;
}

std::vector<std::size_t> pieceEnds(std::string_view text)
{
    std::vector ends{firstPieceEnd(text)};
    while (ends.back() < text.size()) ends.push_back(ends.back() + firstPieceEnd(text.substr(ends.back())));
    return ends;
}

TEST(TextPieces, OfAShortTextAreOne)
{
    EXPECT_THAT(pieceEnds(""), ElementsAre(0));
    EXPECT_THAT(pieceEnds("a b\nc"), ElementsAre(5));
    EXPECT_THAT(pieceEnds(std::string(2'000, 'a')), ElementsAre(2'000));
}

TEST(TextPieces, CountCharactersAndNotBytes)
{
    EXPECT_THAT(pieceEnds(repeated("ä", 2'000)), ElementsAre(4'000));
    EXPECT_THAT(pieceEnds(repeated("😀", 2'001)), ElementsAre(8'000, 8'004));
}

TEST(TextPieces, EndBehindTheLastLineEnd)
{
    EXPECT_THAT(pieceEnds("a\nb\n" + repeated("c ", 1'000)), ElementsAre(4, 2'004));
    EXPECT_THAT(pieceEnds(std::string(1'999, 'a') + "\n\n"), ElementsAre(2'000, 2'001));
}

TEST(TextPieces, ElseEndBehindTheLastBlank)
{
    EXPECT_THAT(pieceEnds("a b\u3000" + std::string(2'000, 'c')), ElementsAre(6, 2'006));
}

TEST(TextPieces, ElseEndBetweenTwoCharacters)
{
    EXPECT_THAT(pieceEnds(std::string(4'500, 'a')), ElementsAre(2'000, 4'000, 4'500));
}

TEST(TextPieces, DoNotSeparateAMarkFromItsLetter)
{
    EXPECT_THAT(pieceEnds(std::string(2'000, 'a') + "\u0301b"), ElementsAre(1'999, 2'003));
    EXPECT_THAT(pieceEnds(std::string(1'999, 'a') + "\n\u0301b"), ElementsAre(1'999, 2'003));
}

TEST(TextPieces, EndWithinWhatIsJoinedOnlyWhereItIsLongerThanAPiece)
{
    EXPECT_THAT(pieceEnds("a" + repeated("\u0301", 2'500)), ElementsAre(3'999, 5'001));
}

TEST(TextPieces, CutBadBytesAnywhere)
{
    EXPECT_THAT(pieceEnds(std::string(2'500, '\xC3')), ElementsAre(2'000, 2'500));
}

struct PairRow {
    char32_t before;
    char32_t after;
};

class DrawnApart : public testing::TestWithParam<PairRow> {};
class DrawnTogether : public testing::TestWithParam<PairRow> {};

TEST_P(DrawnApart, AreMostPairs)
{
    EXPECT_TRUE(areDrawnApart(GetParam().before, GetParam().after));
}

TEST_P(DrawnTogether, AreMarksFlagsSyllablesAndEmoji)
{
    EXPECT_FALSE(areDrawnApart(GetParam().before, GetParam().after));
}

INSTANTIATE_TEST_SUITE_P(Pairs, DrawnApart,
    testing::Values(PairRow{U'a', U'b'}, PairRow{U'a', U' '}, PairRow{U'あ', U'い'}, PairRow{U'\u0301', U'a'},
        PairRow{U'가', U'각'}, PairRow{U'😀', U'😀'}, PairRow{U'a', U'\U0001F1E6'}, PairRow{U'\U0001F1E6', U'a'},
        PairRow{U'a', U'\U0010FFFF'}));

INSTANTIATE_TEST_SUITE_P(Pairs, DrawnTogether,
    testing::Values(PairRow{U'a', U'\u0301'}, PairRow{U'க', U'\u0BBE'}, PairRow{U'a', U'\u20DD'},
        PairRow{U'\u2764', U'\uFE0F'}, PairRow{U'👩', U'\u200D'}, PairRow{U'\u200D', U'👩'},
        PairRow{U'👋', U'\U0001F3FD'}, PairRow{U'\U0001F1E9', U'\U0001F1EA'}, PairRow{U'\u1100', U'\u1161'},
        PairRow{U'🏴', U'\U000E0067'}));

}  // namespace

}  // namespace larkspan::messages
