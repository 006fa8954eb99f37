#include "messages/markdown/CharacterReference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "messages/markdown/CharacterTables.h"

namespace larkspan::messages {

namespace {

struct ReferenceRow {
    std::string reference;
    std::string text;
};

void PrintTo(const ReferenceRow& row, std::ostream* out)
{
    *out << row.reference;
}

class CharacterReference : public testing::TestWithParam<ReferenceRow> {};

TEST_P(CharacterReference, StandsForItsText)
{
    EXPECT_EQ(decodedCharacterReference(GetParam().reference), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Named, CharacterReference,
    testing::Values(ReferenceRow{"&amp;", "&"}, ReferenceRow{"&AMP;", "&"}, ReferenceRow{"&nbsp;", "\u00A0"},
        ReferenceRow{"&AElig;", "Æ"}, ReferenceRow{"&frac34;", "¾"}, ReferenceRow{"&zwnj;", "\u200C"},
        ReferenceRow{"&NotEqualTilde;", "\u2242\u0338"}, ReferenceRow{"&Afr;", "\U0001D504"},
        ReferenceRow{"&CounterClockwiseContourIntegral;", "\u2233"}));

INSTANTIATE_TEST_SUITE_P(Unknown, CharacterReference,
    testing::Values(ReferenceRow{"&Amp;", "&Amp;"}, ReferenceRow{"&ThisIsNotDefined;", "&ThisIsNotDefined;"},
        ReferenceRow{"&aaaa;", "&aaaa;"}, ReferenceRow{"&zzzz;", "&zzzz;"}));

INSTANTIATE_TEST_SUITE_P(Numeric, CharacterReference,
    testing::Values(ReferenceRow{"&#35;", "#"}, ReferenceRow{"&#1234;", "Ӓ"}, ReferenceRow{"&#x22;", "\""},
        ReferenceRow{"&#Xcab;", "ಫ"}, ReferenceRow{"&#128512;", "😀"}, ReferenceRow{"&#10;", "\n"}));

INSTANTIATE_TEST_SUITE_P(OfNoCharacter, CharacterReference,
    testing::Values(ReferenceRow{"&#0;", "\uFFFD"}, ReferenceRow{"&#x0;", "\uFFFD"}, ReferenceRow{"&#xD800;", "\uFFFD"},
        ReferenceRow{"&#xFFFFFF;", "\uFFFD"}, ReferenceRow{"&#9999999;", "\uFFFD"}));

TEST(NamedCharacters, AreSortedAndAllThere)
{
    const auto named = namedCharacters();
    EXPECT_EQ(named.size(), 2125u);
    EXPECT_TRUE(std::ranges::is_sorted(named, {}, &NamedCharacter::name));
}

TEST(JoiningCharacters, AreSortedAndDoNotOverlap)
{
    const auto ranges = joiningCharacters();
    for (std::size_t index = 0; index < ranges.size(); ++index) {
        EXPECT_LE(ranges[index].first, ranges[index].last);
        if (index > 0) {
            EXPECT_GT(ranges[index].first, ranges[index - 1].last);
        }
    }
}

}  // namespace

}  // namespace larkspan::messages
