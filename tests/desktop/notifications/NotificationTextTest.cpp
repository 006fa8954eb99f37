#include "adapters/NotificationText.h"

#include <gtest/gtest.h>

namespace larkspan::adapters {
namespace {

QString bodyOf(const std::string& body)
{
    return NotificationText({.body = body}).body;
}

struct LayoutRow {
    BodyMarkup markup;
    std::string subtitle;
    std::string body;
    QString laidOut;
};

class Layout : public testing::TestWithParam<LayoutRow> {};

TEST_P(Layout, ShowsTheServicesTextsAsTheyWereMeant)
{
    const auto [markup, subtitle, body, laidOut] = GetParam();
    EXPECT_EQ(NotificationText({.subtitle = subtitle, .body = body}).laidOut(markup), laidOut);
}

using enum BodyMarkup;

INSTANTIATE_TEST_SUITE_P(EachServer, Layout,
    testing::Values(LayoutRow{literal, "API", "It is down.", "API\nIt is down."},
        LayoutRow{literal, "a < b & \"c\"", "<b>x</b>", "a < b & \"c\"\n<b>x</b>"},
        LayoutRow{literal, "API", "", "API"}, LayoutRow{literal, "", "It is down.", "It is down."},
        LayoutRow{interpreted, "API", "It is down.", "<b>API</b>\nIt is down."},
        LayoutRow{
            interpreted, "a < b & \"c\"", "<b>x</b>", "<b>a &lt; b &amp; &quot;c&quot;</b>\n&lt;b&gt;x&lt;/b&gt;"},
        LayoutRow{interpreted, "API", "", "<b>API</b>"}, LayoutRow{interpreted, "", "&amp;", "&amp;amp;"},
        LayoutRow{unknown, "API", "It is down.", "API\nIt is down."},
        LayoutRow{unknown, "a < b & c", "<b>", "a ‹ b ＆ c\n‹b›"}));

struct CharactersRow {
    std::string sent;
    QString shown;
};

class Characters : public testing::TestWithParam<CharactersRow> {};

TEST_P(Characters, AreOnesThatTheBusTakesAndTheScreenShows)
{
    EXPECT_EQ(bodyOf(GetParam().sent), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Hostile, Characters,
    testing::Values(CharactersRow{std::string("a\0b", 3), "ab"}, CharactersRow{"a\x1b[31mb\x7f", "a[31mb"},
        CharactersRow{"a\tb", "a b"}, CharactersRow{"a\r\nb", "a\nb"}, CharactersRow{"\xc2\x85", ""},
        CharactersRow{"a\xff\xfe", QStringLiteral(u"a\uFFFD\uFFFD")},
        CharactersRow{"caf\xc3", QStringLiteral(u"caf\uFFFD")}, CharactersRow{"👩\u200d🚒", "👩\u200d🚒"}));

class Length : public testing::TestWithParam<const char*> {};

TEST_P(Length, IsCountedInCharactersWhateverBytesTheyTake)
{
    const auto character = QString::fromUtf8(GetParam());
    const auto longest = character.repeated(1024);

    EXPECT_EQ(bodyOf(longest.toStdString()), longest);
    EXPECT_EQ(bodyOf((longest + character).toStdString()), longest + u'…');
    EXPECT_EQ(NotificationText({.subtitle = longest.toStdString()}).subtitle, character.repeated(256) + u'…');
}

INSTANTIATE_TEST_SUITE_P(OfOneToFourBytes, Length, testing::Values("x", "ж", "न", "\U0001F426"));

TEST(NotificationText, OfNothingButBrokenCharactersIsCut)
{
    EXPECT_LE(bodyOf(std::string(1'000'000, '\x80')).size(), 1025);
}

TEST(NotificationText, KeepsTitleAndSubtitleOnOneLine)
{
    const NotificationText text({.title = "New\nIncident", .subtitle = "Search\r\nis slow"});

    EXPECT_EQ(text.title, "New Incident");
    EXPECT_EQ(text.subtitle, "Search is slow");
}

}  // namespace
}  // namespace larkspan::adapters
