#include "messages/markdown/MarkdownLink.h"

#include <gtest/gtest.h>

#include <ostream>

namespace larkspan::messages {

namespace {

struct LinkRow {
    std::string text;
    std::string destination;
    std::string host;
};

void PrintTo(const LinkRow& row, std::ostream* out)
{
    *out << row.text;
}

class Openable : public testing::TestWithParam<LinkRow> {};
class NotOpenable : public testing::TestWithParam<std::string> {};

TEST_P(Openable, NamesItsRealHost)
{
    EXPECT_EQ(MarkdownLink::parse(GetParam().text), (MarkdownLink{GetParam().destination, GetParam().host}));
}

TEST_P(NotOpenable, IsNoLink)
{
    EXPECT_FALSE(MarkdownLink::parse(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Web, Openable,
    testing::Values(LinkRow{"https://a.example", "https://a.example", "a.example"},
        LinkRow{"http://a.example:8080/b?c=d#e", "http://a.example:8080/b?c=d#e", "a.example"},
        LinkRow{"HTTPS://a.example/", "https://a.example/", "a.example"},
        LinkRow{"https://[::1]/", "https://[::1]/", "::1"},
        LinkRow{"https://bücher.example/ä", "https://bücher.example/ä", "xn--bcher-kva.example"},
        LinkRow{"https://a.example#@b.example", "https://a.example#@b.example", "a.example"}));

INSTANTIATE_TEST_SUITE_P(WithUnusualCharacters, Openable,
    testing::Values(LinkRow{"https://a.example/b c?d[]=\"e\"", "https://a.example/b%20c?d%5B%5D=%22e%22", "a.example"},
        LinkRow{R"(https://a.example/\b|{c}^`<d>)", "https://a.example/%5Cb%7C%7Bc%7D%5E%60%3Cd%3E", "a.example"}));

INSTANTIATE_TEST_SUITE_P(Mail, Openable,
    testing::Values(LinkRow{"mailto:me@a.example", "mailto:me@a.example", "me@a.example"},
        LinkRow{"MailTo:me@a.example?bcc=you@b.example&attach=/etc/passwd", "mailto:me@a.example", "me@a.example"}));

INSTANTIATE_TEST_SUITE_P(OtherSchemes, NotOpenable,
    testing::Values("", "a", "/a", "//a.example", "a.example", "ftp://a.example", "file:///etc/passwd",
        "javascript:alert(1)", "data:text/html,a", "larkspan:a", ":https://a.example", " https://a.example",
        "java\tscript:a", "ht\ntps://a.example", "https\u200B://a.example"));

INSTANTIATE_TEST_SUITE_P(WebWithoutAPlainHost, NotOpenable,
    testing::Values("https:", "https:a.example", "https:/a.example", "https:///a", "https://", "https://?a",
        "https://:80/", "https://a.example@b.example/", "https://a.example:x@b.example/",
        R"(https://a.example\@b.example/)", "https://a.example%2Eb.example/", "https://a%00.example/",
        "https://a b.example/", "https://a.example:99999/", "https://<a>.example/", "https://a.example/\n",
        "https://a.example/\x7F", "https://a.example/\xFF", "https://a.example/%", "https://" + std::string(254, 'a'),
        "https://a.example/" + std::string(2'000, 'b')));

INSTANTIATE_TEST_SUITE_P(MailWithoutOneAddress, NotOpenable,
    testing::Values("mailto:", "mailto:a", "mailto:@a.example", "mailto:a@", "mailto:?to=a@b.example",
        "mailto:a@b.example,c@d.example", "mailto:a@b@c.example", "mailto:a%40b@c.example", "mailto:a b@c.example",
        "mailto:\u0430@c.example", "mailto:\"a\"@c.example", "mailto:A<a@c.example>", "mailto:a;b@c.example"));

INSTANTIATE_TEST_SUITE_P(MailWithAControlCharacterInWhatIsLeftOut, NotOpenable,
    testing::Values("mailto:a@b.example?subject=\n", "mailto:a@b.example?subject=\x7F"));

TEST(Openable, MayBeAsLongAsBrowsersTake)
{
    const auto text = "https://a.example/" + std::string(1'982, 'b');
    EXPECT_EQ(MarkdownLink::parse(text), (MarkdownLink{text, "a.example"}));
    const auto host = std::string(253, 'a');
    EXPECT_EQ(MarkdownLink::parse("http://" + host), (MarkdownLink{"http://" + host, host}));
}

}  // namespace

}  // namespace larkspan::messages
