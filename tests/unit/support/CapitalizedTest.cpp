#include "support/Capitalized.h"

#include <gtest/gtest.h>

#include <string>

namespace larkspan::support {

namespace {

struct CapitalizedRow {
    std::string text;
    std::string capitalized;
};

class Capitalized : public testing::TestWithParam<CapitalizedRow> {};

TEST_P(Capitalized, HasTheFirstLetterOfEachWordLargeAndTheOthersSmall)
{
    EXPECT_EQ(capitalized(GetParam().text), GetParam().capitalized);
}

INSTANTIATE_TEST_SUITE_P(Words, Capitalized,
    testing::Values(CapitalizedRow{"", ""}, CapitalizedRow{"active", "Active"}, CapitalizedRow{"CRITICAL", "Critical"},
        CapitalizedRow{"in_progress", "In_Progress"}, CapitalizedRow{"very HIGH", "Very High"},
        CapitalizedRow{"partial-outage", "Partial-Outage"}, CapitalizedRow{"  two  words ", "  Two  Words "},
        CapitalizedRow{"line\nbreak", "Line\nBreak"}, CapitalizedRow{"can't WAIT", "Can't Wait"},
        CapitalizedRow{"can’t", "Can’t"}, CapitalizedRow{"'quoted'", "'Quoted'"}, CapitalizedRow{"sev2B", "Sev2b"},
        CapitalizedRow{"(minor)", "(Minor)"}, CapitalizedRow{"a/b", "A/B"}, CapitalizedRow{"[z]", "[Z]"}));

INSTANTIATE_TEST_SUITE_P(OtherAlphabets, Capitalized,
    testing::Values(CapitalizedRow{"äußerst KRITISCH", "Äußerst Kritisch"}, CapitalizedRow{"ØST þing", "Øst Þing"},
        CapitalizedRow{"ČERVENÁ żółty", "Červená Żółty"}, CapitalizedRow{"ƯU TIÊN", "Ưu Tiên"},
        CapitalizedRow{"ẩn", "Ẩn"}, CapitalizedRow{"ΚΡΊΣΙΜΟ έκτακτο", "Κρίσιμο Έκτακτο"},
        CapitalizedRow{"КРИТИЧНО ёлка", "Критично Ёлка"}, CapitalizedRow{"ӘДІЛ", "Әділ"},
        CapitalizedRow{"ՓՈՔՐ", "Փոքր"}, CapitalizedRow{"重大 ALERT", "重大 Alert"}, CapitalizedRow{"×a", "×A"},
        CapitalizedRow{"«a» \u2014b", "«A» \u2014B"}, CapitalizedRow{"m\u2070A", "M\u2070a"},
        CapitalizedRow{"a\u2000b", "A\u2000B"}, CapitalizedRow{"a\u3000b", "A\u3000B"},
        CapitalizedRow{"\u3003a", "\u3003A"}, CapitalizedRow{"\u3004A", "\u3004a"}));

TEST(CapitalizedText, KeepsBytesThatAreNoText)
{
    EXPECT_EQ(capitalized("\xFF"
                          "ab\xC3"),
        "\xFF"
        "ab\xC3")
        << "a byte that is no character counts as one of an unknown word";
    EXPECT_EQ(capitalized("\xEF\xBF\xBD"), "\xEF\xBF\xBD");
}

}  // namespace

}  // namespace larkspan::support
