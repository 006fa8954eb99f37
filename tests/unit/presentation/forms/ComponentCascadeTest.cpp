#include "presentation/forms/ComponentCascade.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "fakes/FakeLocaleText.h"

namespace larkspan::presentation {

namespace {

using model::Component;
using model::ComponentGroup;
using Words = std::vector<std::string>;

Component component(std::string id, std::string name, std::optional<std::string> groupId = {})
{
    Component made;
    made.id = std::move(id);
    made.name = std::move(name);
    made.groupId = std::move(groupId);
    return made;
}

ComponentGroup group(std::string id, std::string name, std::optional<Components> components = {})
{
    ComponentGroup made;
    made.id = std::move(id);
    made.name = std::move(name);
    made.components = std::move(components);
    return made;
}

template <typename Record>
Words names(const std::vector<Record>& records)
{
    Words all;
    for (const auto& record : records) all.push_back(record.name);
    return all;
}

const fakes::FakeLocaleText locale;

TEST(MergedComponents, AreSortedByNameWithoutRegardToCase)
{
    const Components list{component("1", "web"), component("2", "API"), component("3", "Zone"), component("4", "beta")};
    EXPECT_EQ(names(mergedComponents(list, locale)), (Words{"API", "beta", "web", "Zone"}));
}

TEST(MergedComponents, KeepTheFirstMetOfEachId)
{
    const Components list{component("2", "b"), component("1", "first"), component("1", "a second")};
    EXPECT_EQ(names(mergedComponents(list, locale)), (Words{"b", "first"}));
}

TEST(MergedComponents, OfOneNameStayInTheOrderThatTheyCameIn)
{
    const auto merged = mergedComponents({component("9", "api"), component("1", "API")}, locale);
    EXPECT_EQ(names(merged), (Words{"api", "API"}));
}

TEST(MergedComponents, OfNothingAreNothing)
{
    EXPECT_TRUE(mergedComponents({}, locale).empty());
}

TEST(AllComponents, AreThoseOfTheGroupsAndThoseOfTheFlatListEachOnce)
{
    const ComponentGroups groups{group("g", "G", Components{component("1", "as under its group", "g")}),
        group("h", "H", Components{}), group("i", "I")};
    const Components flat{component("1", "as in the flat list", "g"), component("2", "alone")};
    EXPECT_EQ(names(allComponents(groups, flat, locale)), (Words{"alone", "as under its group"}));
}

TEST(ComponentsOfAGroup, AreItsOwnAndThoseThatNameIt)
{
    const ComponentGroups groups{group("g", "G", Components{component("1", "own")}), group("h", "H")};
    const Components flat{component("2", "named", "g"), component("3", "other", "h"), component("4", "none")};
    EXPECT_EQ(names(componentsForGroup("g", groups, flat, locale)), (Words{"named", "own"}));
    EXPECT_EQ(names(componentsForGroup("h", groups, flat, locale)), Words{"other"});
}

TEST(ComponentsOfAGroup, OfWhichOneComesTwiceHaveItOnceAsUnderTheGroup)
{
    const ComponentGroups groups{group("g", "G", Components{component("1", "grouped", "g")})};
    EXPECT_EQ(names(componentsForGroup("g", groups, {component("1", "flat", "g")}, locale)), Words{"grouped"});
}

TEST(ComponentsOfAGroup, ThatIsNotThereAreThoseThatNameIt)
{
    EXPECT_EQ(names(componentsForGroup("gone", {}, {component("1", "orphan", "gone")}, locale)), Words{"orphan"});
    EXPECT_TRUE(componentsForGroup("none", {}, {component("1", "orphan", "gone")}, locale).empty());
}

TEST(ComponentsOfAGroup, OfAnIdThatComesTwiceAreThoseOfTheFirst)
{
    const ComponentGroups groups{
        group("g", "first", Components{component("1", "a")}), group("g", "second", Components{component("2", "b")})};
    EXPECT_EQ(names(componentsForGroup("g", groups, {}, locale)), Words{"a"});
}

TEST(GroupsWithComponents, KeepTheServicesOrderAndLeaveOutThoseWithNothingToChoose)
{
    const ComponentGroups groups{group("b", "B", Components{component("1", "x")}), group("e", "empty", Components{}),
        group("n", "none"), group("a", "a")};
    EXPECT_EQ(names(groupsWithComponents(groups, {component("2", "y", "a")})), (Words{"B", "a"}));
}

TEST(GroupsWithComponents, GoByWhatTheGroupSaysOfAComponentThatComesTwice)
{
    const ComponentGroups groups{group("g", "G", Components{component("1", "x", "g")}), group("h", "H")};
    EXPECT_EQ(names(groupsWithComponents(groups, {component("1", "x", "h")})), Words{"G"});
}

TEST(GroupsWithComponents, OfOneIdGoByTheFirst)
{
    const ComponentGroups emptyFirst{group("g", "first"), group("g", "second", Components{component("1", "x")})};
    EXPECT_TRUE(groupsWithComponents(emptyFirst, {}).empty());
}

TEST(GroupsWithComponents, AreJustThoseForWhichThereIsAComponent)
{
    const ComponentGroups groups{group("a", "A", Components{component("1", "x", "b")}), group("b", "B"),
        group("c", "C", Components{component("2", "y", "d")}), group("d", "D"), group("e", "E")};
    const Components flat{component("2", "y", "e"), component("3", "z", "d"), component("3", "z", "e")};
    Words offered;
    for (const auto& each : groups) {
        if (!componentsForGroup(each.id, groups, flat, locale).empty()) offered.push_back(each.name);
    }
    EXPECT_EQ(names(groupsWithComponents(groups, flat)), offered);
    EXPECT_EQ(offered, (Words{"A", "B", "C", "D"}));
}

}  // namespace

}  // namespace larkspan::presentation
