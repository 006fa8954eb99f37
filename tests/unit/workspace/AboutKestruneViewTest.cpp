#include "workspace/AboutKestruneView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/FakeLinkOpener.h"

namespace larkspan::workspace {

namespace {

class AboutBox : public testing::Test {
protected:
    fakes::FakeLinkOpener links;
    AboutKestruneView::Bundle bundle{.shortVersion = "2.3",
        .buildNumber = "45",
        .websiteAddress = "https://site.example",
        .communityAddress = "https://community.example",
        .organisationAddress = "https://source.example"};
};

TEST_F(AboutBox, NamesTheProgramItsVersionAndItsBuild)
{
    const AboutKestruneView about(bundle, links);
    EXPECT_EQ(AboutKestruneView::title, "Kestrune");
    EXPECT_EQ(AboutKestruneView::text, "A focused companion for monitoring your Kestrune status pages.");
    EXPECT_EQ(about.version(), "2.3");
    EXPECT_EQ(about.build(), "45");
    EXPECT_EQ(about.versionText(), "Version 2.3 (45)");
}

TEST_F(AboutBox, OfABuildThatDoesNotSayIsVersionOneBuildOne)
{
    EXPECT_EQ(AboutKestruneView({}, links).versionText(), "Version 1.0 (1)");
}

TEST_F(AboutBox, HasThreeLinksInTheirOrder)
{
    std::vector<std::string> rows;
    const AboutKestruneView about(bundle, links);
    for (const auto& link : about.links()) {
        rows.push_back(std::string(link.symbol) + " | " + std::string(link.title) + " | " + std::string(link.subtitle)
            + " | " + link.destination);
    }
    EXPECT_EQ(rows,
        (std::vector<std::string>{
            "globe | Kestrune | Visit our website | https://site.example",
            "bubble.left.and.bubble.right | Community on Discord | Chat with our team | https://community.example",
            "chevron.left.forwardslash.chevron.right | GitHub | Source code and issue tracking | https://source.example",
        }));
}

TEST_F(AboutBox, AClickOpensTheDestinationInTheBrowser)
{
    const AboutKestruneView about(bundle, links);
    about.open(about.links()[1]);
    EXPECT_EQ(links.opened, (std::vector<std::string>{"https://community.example"}));
}

}  // namespace

}  // namespace larkspan::workspace
