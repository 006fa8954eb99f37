#include <gtest/gtest.h>

#include "components/DetailOfAComponent.h"

namespace larkspan::components {

namespace {

using platform::HttpResponse;
using presentation::Fact;
using presentation::Pill;
using presentation::Tone;
using Facts = std::vector<Fact>;

std::string withURL(const std::string& url)
{
    return R"(, "url": ")" + url + "\"";
}

TEST_F(DetailOfAComponent, ShowsItsNameItsStatusItsDetailsAndItsDescription)
{
    opened(whole);
    EXPECT_EQ(ComponentDetailView::title, "Component Details");
    EXPECT_EQ(view->component->name, "Component 7");
    EXPECT_EQ(view->status(), (Pill{"Operational", Tone::green}));
    EXPECT_TRUE(view->showsDetails());
    EXPECT_EQ(view->details(),
        (Facts{{.label = "Group", .text = "Group b", .tone = Tone::primary, .symbol = "folder"},
            {.label = "URL",
                .text = "https://status.example/parts/7",
                .destination = "https://status.example/parts/7"}}));
    EXPECT_EQ(view->description(), "Serves all.");
    EXPECT_EQ(view->closeLabel(), "Close");
    EXPECT_TRUE(view->isIdle());
}

TEST_F(DetailOfAComponent, WithoutGroupURLAndDescriptionShowsTheHeaderAlone)
{
    opened();
    EXPECT_FALSE(view->showsDetails());
    EXPECT_EQ(view->details(), Facts{});
    EXPECT_EQ(view->description(), "");
    EXPECT_EQ(view->status(), (Pill{"Unknown", Tone::gray}));
}

TEST_F(DetailOfAComponent, WhoseGroupIsNotAmongTheGroupsAndWhichHasNoURLHasNoDetails)
{
    opened(inGroup("gone"));
    EXPECT_FALSE(view->showsDetails());
}

TEST_F(DetailOfAComponent, WithAURLThatDoesNotParseHasDetailsWithNoRowsUnlessItsGroupIsKnown)
{
    opened(withURL("not a url"));
    EXPECT_TRUE(view->showsDetails());
    EXPECT_EQ(view->details(), Facts{});
    opened(withURL("not a url") + inGroup("a"));
    EXPECT_EQ(
        view->details(), (Facts{{.label = "Group", .text = "Group a", .tone = Tone::primary, .symbol = "folder"}}));
}

TEST_F(DetailOfAComponent, HasItsGroupOnceTheGroupsHaveCome)
{
    transport.forget(groupsURL);
    opened(inGroup("a"));
    EXPECT_FALSE(view->showsDetails());
    transport.answer(HttpResponse{200, list({groupRecord("a"), R"({"id": "a", "name": "Second"})"})});
    run();
    EXPECT_EQ(view->details().at(0).text, "Group a") << "the first of that id";
}

TEST_F(DetailOfAComponent, WhoseGroupsFailToLoadIsWithoutThemAndReportsNothing)
{
    for (const int status : {400, 401, 403, 404, 500}) {
        transport.script(groupsURL, status, "");
        opened(whole);
        EXPECT_TRUE(view->groups->empty());
        EXPECT_EQ(view->details().size(), 1u);
        EXPECT_EQ(view->details().at(0).label, "URL");
        EXPECT_EQ(view->action->alert.words(), "");
        EXPECT_TRUE(view->isIdle());
    }
}

TEST_F(DetailOfAComponent, OpensItsURLInTheBrowser)
{
    opened(whole)->openURL();
    EXPECT_EQ(links.opened, Words{"https://status.example/parts/7"});
}

TEST_F(DetailOfAComponent, ShowsWhatIsNoWebAddressAndNeverOpensIt)
{
    for (const auto* const address : {"file:///etc/passwd", "javascript:alert(1)", "parts/7", "//status.example"}) {
        opened(withURL(address))->openURL();
        EXPECT_EQ(view->details(), (Facts{{.label = "URL", .text = address}}));
    }
    EXPECT_TRUE(links.opened.empty());
}

TEST_F(DetailOfAComponent, IsClosedByItsButtonAndByEscape)
{
    opened()->close();
    opened()->requestClose();
    EXPECT_EQ(effects, (Words{"dismiss Component 7", "dismiss Component 7"}));
}

TEST_F(DetailOfAComponent, TellsItsObserversOfEditsAndOfWhatRuns)
{
    opened();
    int changes = 0;
    const auto subscriptions = view->observe([&changes] { ++changes; });
    view->editedName = "New";
    EXPECT_EQ(changes, 1);
    view->action->isInProgress = true;
    EXPECT_EQ(changes, 2);
}

TEST_F(DetailOfAComponent, ThatGoesWhileItsGroupsLoadIsFreedAfterThem)
{
    transport.forget(groupsURL);
    const std::weak_ptr<ComponentDetailView> held = opened();
    view.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{200, "[]"});
    run();
    EXPECT_TRUE(held.expired());
}

}  // namespace

}  // namespace larkspan::components
