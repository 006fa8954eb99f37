#include "messages/MessageView.h"

#include <gtest/gtest.h>

#include "fakes/FakeLinkOpener.h"

namespace larkspan::messages {

namespace {

class MessageOfAnIncident : public testing::Test {
protected:
    /// The first link of a message.
    static MarkdownLink linkIn(const std::string& source)
    {
        return MessageView::rowsOf(source).rows.at(0).text.links.at(0);
    }

    fakes::FakeLinkOpener links;
    MessageView view{links};
};

TEST_F(MessageOfAnIncident, TellsWhereALinkReallyLeadsBeforeItIsOpened)
{
    view.follow(linkIn("[https://bank.example](https://evil.example/x)"));
    EXPECT_EQ(view.questionText(), "This link leads to evil.example.");
    EXPECT_TRUE(links.opened.empty());
    view.openLink();
    EXPECT_EQ(links.opened, std::vector<std::string>{"https://evil.example/x"});
    EXPECT_EQ(view.questionText(), "");
}

TEST_F(MessageOfAnIncident, OpensNothingThatTheUserDeclined)
{
    view.follow(linkIn("<https://status.example/>"));
    view.cancelLink();
    view.openLink();
    EXPECT_TRUE(links.opened.empty());
}

TEST_F(MessageOfAnIncident, OpensALinkOnceForEachQuestion)
{
    view.follow(linkIn("<mailto:team@acme.example>"));
    view.openLink();
    view.openLink();
    EXPECT_EQ(links.opened.size(), 1u);
}

TEST_F(MessageOfAnIncident, HasNoLinkToAFileOrAScript)
{
    for (const auto* const source : {"[a](file:///etc/passwd)", "[a](javascript:alert(1))", "[a](data:text/html,x)"}) {
        EXPECT_TRUE(MessageView::rowsOf(source).rows.at(0).text.links.empty()) << source;
    }
}

}  // namespace

}  // namespace larkspan::messages
