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

TEST(NotificationText, HasNoCharactersThatDoNotMeanWhatTheyShow)
{
    const NotificationText text({.title = "a\x1b[31mb\u202Ec", .subtitle = "a\x07", .body = "a\u2066b\r\nc"});

    EXPECT_EQ(text.title, "a[31mbc");
    EXPECT_EQ(text.subtitle, "a");
    EXPECT_EQ(text.body, "ab\nc");
}

TEST(NotificationText, IsCutAtTwoHundredCharacters)
{
    const std::string longest(200, 'x');
    const auto cut = QString::fromStdString(longest) + u'…';
    const NotificationText text({.title = longest + 'x', .subtitle = longest + 'x', .body = longest + 'x'});

    EXPECT_EQ(text.title, cut);
    EXPECT_EQ(text.subtitle, cut);
    EXPECT_EQ(text.body, cut);
    EXPECT_EQ(bodyOf(longest).toStdString(), longest);
}

TEST(NotificationText, KeepsTitleAndSubtitleOnOneLine)
{
    const NotificationText text({.title = "New\nIncident", .subtitle = "Search\r\nis slow"});

    EXPECT_EQ(text.title, "New Incident");
    EXPECT_EQ(text.subtitle, "Search is slow");
}

}  // namespace
}  // namespace larkspan::adapters
