#include "presentation/text/NameText.h"

#include <gtest/gtest.h>

namespace larkspan::presentation {

namespace {

TEST(NameText, OfOneLineIsTheNameAsItStands)
{
    EXPECT_EQ(nameText("Payment API"), "Payment API");
    EXPECT_EQ(nameText("  API "), "  API ");
    EXPECT_EQ(nameText("שגיאות"), "שגיאות");
    EXPECT_EQ(nameText("<b>&amp;</b>"), "<b>&amp;</b>");
}

TEST(NameText, OfSeveralLinesIsOneLineWithBlanks)
{
    EXPECT_EQ(nameText("Payment\nAPI"), "Payment API");
    EXPECT_EQ(nameText("Payment\r\n\r\nAPI"), "Payment API");
    EXPECT_EQ(nameText("a\u2028b\u2029c\u0085d\ve\ff"), "a b c d e f");
    EXPECT_EQ(nameText("\nPayment API\n"), "Payment API");
}

class NameWithoutAVisibleCharacter : public testing::TestWithParam<const char*> {};

TEST_P(NameWithoutAVisibleCharacter, IsTheWordForARecordWithoutAName)
{
    EXPECT_EQ(nameText(GetParam()), "Unnamed");
}

INSTANTIATE_TEST_SUITE_P(Each, NameWithoutAVisibleCharacter,
    testing::Values("", " ", "\t \n", "\u00A0\u3000", "\u200B\u200D", "\u200E\u202E", "\u2060\uFEFF", "\u00AD",
        "\u2800", "\u3164", "\uFE0F", "\U000E0041", "\x01\x7F"));

TEST(NameText, OfInvisibleCharactersAroundAVisibleOneIsTheNameAsItStands)
{
    EXPECT_EQ(nameText("\u200Fא\u200F"), "\u200Fא\u200F");
    EXPECT_EQ(nameText("👩\u200D🚀"), "👩\u200D🚀");
}

TEST(NameText, OfAnExtremelyLongNameIsItsBeginning)
{
    EXPECT_EQ(nameText(std::string(30'000, 'a')), std::string(20'000, 'a') + "…");
    EXPECT_EQ(nameText("Payment API", 7), "Payment…");
}

TEST(RowTitle, OfALongNameIsAsMuchAsOneLineOfTheWidestWindowHas)
{
    EXPECT_EQ(rowTitle(std::string(600, 'a')), std::string(600, 'a'));
    EXPECT_EQ(rowTitle(std::string(601, 'a')), std::string(600, 'a') + "…");
    EXPECT_EQ(rowTitle(" \n"), "Unnamed");
}

TEST(NameText, OfANameThatBeginsWithNothingVisibleForLongIsTheWordForARecordWithoutAName)
{
    EXPECT_EQ(nameText(std::string(30'000, '\n')), "Unnamed");
    EXPECT_EQ(nameText(std::string(900, '\n') + "API"), "API");
}

TEST(NameText, FindsALineEndWhereverItStands)
{
    for (const std::string end : {"\n", "\r", "\v", "\u0085", "\u2028", "\u2029"}) {
        for (std::size_t before = 1; before < 200; ++before) {
            const std::string line(before, 'x');
            EXPECT_EQ(nameText(line + end + "y"), line + " y") << before;
            EXPECT_EQ(nameText(line + end), line) << before;
        }
    }
    EXPECT_EQ(nameText("… “a” ©"), "… “a” ©");
}

}  // namespace

}  // namespace larkspan::presentation
