#include "support/LegibleOutside.h"

#include <gtest/gtest.h>

#include <string>

namespace larkspan::support {

namespace {

struct Row {
    std::string sent;
    std::string shown;
};

class LegibleOutside : public testing::TestWithParam<Row> {};

TEST_P(LegibleOutside, HasOnlyCharactersThatMeanWhatTheyShow)
{
    EXPECT_EQ(legibleOutside(GetParam().sent), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(EachKind, LegibleOutside,
    testing::Values(Row{"", ""}, Row{"Shop & <b>", "Shop & <b>"}, Row{std::string("a\0b", 3), "ab"},
        Row{"a\x07\x1b[31mb\x7f", "a[31mb"}, Row{"a\tb", "a b"}, Row{"a\r\nb", "a b"}, Row{"a\u0085b", "ab"},
        Row{"a\u2028b\u2029c", "a b c"}, Row{"a\u202Ab\u202Ec", "abc"}, Row{"a\u2066b\u2069c", "abc"},
        Row{"a\u200Eb\u200Fc\u061Cd", "abcd"}, Row{"a\xff\xfe", "a\uFFFD\uFFFD"}, Row{"caf\xc3", "caf\uFFFD"},
        Row{"👩\u200d🚒", "👩\u200d🚒"}, Row{"שלום", "שלום"}));

INSTANTIATE_TEST_SUITE_P(BesideThoseThatAreLeftOut, LegibleOutside,
    testing::Values(Row{"~", "~"}, Row{"\u00A0", "\u00A0"}, Row{"\u061B\u061D", "\u061B\u061D"},
        Row{"\u2010\u2027", "\u2010\u2027"}, Row{"\u202F", "\u202F"}, Row{"\u2065\u206A", "\u2065\u206A"}));

TEST(LegibleOutsideLines, AreKeptWhereSeveralMayStand)
{
    EXPECT_EQ(legibleOutside("a\r\nb\u2029c", Lines::several), "a\nb\nc");
}

TEST(LegibleOutsideLength, IsCountedInCharactersWhateverBytesTheyTake)
{
    for (const std::string character : {"x", "ж", "न", "🐦"}) {
        std::string longest;
        for (std::size_t count = 0; count < longestOutside; ++count) longest += character;
        EXPECT_EQ(legibleOutside(longest), longest);
        EXPECT_EQ(legibleOutside(longest + character), longest + "…");
    }
}

TEST(LegibleOutsideLength, OfNothingButBrokenCharactersIsBounded)
{
    EXPECT_EQ(legibleOutside(std::string(1'000'000, '\x80')).size(), 3 * longestOutside + 3);
}

TEST(LegibleOutsideLength, OfNothingButCharactersThatAreLeftOutIsBounded)
{
    EXPECT_EQ(legibleOutside(std::string(1'000'000, '\x07')), "…");
}

}  // namespace

}  // namespace larkspan::support
