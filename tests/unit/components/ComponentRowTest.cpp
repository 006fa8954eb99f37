#include "components/ComponentRow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace larkspan::components {

namespace {

using model::Component;
using model::ComponentGroup;
using presentation::Tone;
using Words = std::vector<std::string>;

Component component(const std::string& id, std::optional<std::string> group = {})
{
    Component made;
    made.id = id;
    made.name = "Component " + id;
    made.status = "up";
    made.groupId = std::move(group);
    return made;
}

ComponentGroup group(const std::string& id)
{
    ComponentGroup made;
    made.id = id;
    made.name = "Group " + id;
    return made;
}

/// The titles; those of headings in brackets.
Words shown(const std::vector<ComponentRow>& rows)
{
    Words words;
    for (const auto& row : rows) words.push_back(row.isHeading ? "[" + row.title + "]" : row.title);
    return words;
}

TEST(ComponentRowOfAComponent, HasItsStatusItsNameAndItsDescription)
{
    auto whole = component("7");
    whole.status = "MajorOutage";
    whole.description = "Of production.";
    EXPECT_EQ(ComponentRow::of(whole),
        (ComponentRow{.id = "7",
            .title = "Component 7",
            .symbol = "xmark.octagon.fill",
            .tone = Tone::red,
            .description = "Of production.",
            .status = {"Majoroutage", Tone::red}}));
    EXPECT_EQ(ComponentRow::of(component("8")).description, "");
}

TEST(ComponentSections, AreTheGroupsInTheirOrderWithTheirComponentsInTheirs)
{
    const std::vector components{component("3", "b"), component("1", "a"), component("2", "b")};
    EXPECT_EQ(shown(componentRows(components, {group("b"), group("a")})),
        (Words{"[Group b]", "Component 3", "Component 2", "[Group a]", "Component 1"}));
}

TEST(ComponentSections, OfAGroupWithoutComponentsAreABareHeader)
{
    EXPECT_EQ(shown(componentRows({component("1", "b")}, {group("a"), group("b"), group("c")})),
        (Words{"[Group a]", "[Group b]", "Component 1", "[Group c]"}));
}

TEST(ComponentSections, HaveComponentsWithoutAGroupUnderUngroupedAndThoseOfADeletedGroupUnderOtherComponents)
{
    const std::vector components{
        component("1", "gone"), component("2"), component("3", "a"), component("4", "gone too")};
    EXPECT_EQ(shown(componentRows(components, {group("a")})),
        (Words{"[Group a]", "Component 3", "[Ungrouped]", "Component 2", "[Other Components]", "Component 1",
            "Component 4"}));
}

TEST(ComponentSections, WithoutGroupsAreTheTwoAtTheEndAndOnlyThoseThatAreNotEmpty)
{
    EXPECT_EQ(shown(componentRows({component("1"), component("2", "a")}, {})),
        (Words{"[Ungrouped]", "Component 1", "[Other Components]", "Component 2"}));
    EXPECT_EQ(shown(componentRows({component("2", "a")}, {})), (Words{"[Other Components]", "Component 2"}));
    EXPECT_EQ(shown(componentRows({component("1")}, {group("a")})), (Words{"[Group a]", "[Ungrouped]", "Component 1"}));
}

TEST(ComponentSections, LeaveTheComponentsThatAGroupListsByItselfAlone)
{
    auto listing = group("a");
    listing.components = std::vector{component("nested", "a")};
    EXPECT_EQ(shown(componentRows({component("1", "a")}, {listing})), (Words{"[Group a]", "Component 1"}));
}

TEST(ComponentSections, OfAGroupThatTheServiceRepeatsHaveItsComponentsOnce)
{
    EXPECT_EQ(shown(componentRows({component("1", "a")}, {group("a"), group("a")})),
        (Words{"[Group a]", "Component 1", "[Group a]"}));
}

TEST(ComponentSections, KeepAnEmptyGroupIdApartFromNone)
{
    EXPECT_EQ(shown(componentRows({component("1", ""), component("2")}, {group("")})),
        (Words{"[Group ]", "Component 1", "[Ungrouped]", "Component 2"}));
}

TEST(ComponentSections, SayOfEachRowWhetherComponentsStandNextToIt)
{
    const auto rows = componentRows({component("1", "a"), component("2", "a")}, {group("a"), group("b")});
    Words neighbours;
    for (const auto& row : rows) {
        neighbours.push_back(
            row.title + (row.followsComponent ? " follows" : "") + (row.precedesComponent ? " precedes" : ""));
    }
    EXPECT_EQ(
        neighbours, (Words{"Group a precedes", "Component 1 precedes", "Component 2 follows", "Group b follows"}));
}

TEST(ComponentSections, OfManyComponentsInManyGroupsHaveEachOnceAndAllInOrder)
{
    std::vector<Component> components;
    std::vector<ComponentGroup> groups;
    for (int number = 0; number < 300; ++number) groups.push_back(group(std::to_string(number)));
    for (int number = 0; number < 5'000; ++number) {
        components.push_back(component(std::to_string(number), std::to_string(number % 310)));
    }
    const auto rows = componentRows(components, groups);
    ASSERT_EQ(rows.size(), 5'301u) << "the groups 300 to 309 are not there";
    EXPECT_EQ(std::ranges::count(rows, true, &ComponentRow::isHeading), 301);
    EXPECT_EQ(rows.at(1).id, "0");
    EXPECT_EQ(rows.at(2).id, "310");
    EXPECT_EQ(rows.back().id, "4959");
}

}  // namespace

}  // namespace larkspan::components
