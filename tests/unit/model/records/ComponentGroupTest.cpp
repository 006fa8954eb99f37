#include "model/records/ComponentGroup.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using Groups = std::vector<ComponentGroup>;

Groups groupsIn(std::string_view body)
{
    return decodedList<ComponentGroupsResponse>(body);
}

TEST(ComponentGroup, ReadsEveryField)
{
    const Groups expected{{.id = "g1",
        .name = "Backend",
        .components = std::vector<Component>{{.id = "5", .name = "API", .status = "up", .groupId = "g1"}}}};
    EXPECT_EQ(groupsIn(R"([{"id": "g1", "name": "Backend", "components": [
        {"id": 5, "name": "API", "monitor_state": "up", "component_group_id": "g1"}]}])"),
        expected);
}

TEST(ComponentGroup, WithoutAComponentsKeyHasThemAbsentWhichIsNotAnEmptyList)
{
    EXPECT_EQ(groupsIn(R"([{"id": "g1", "name": "G"}])").at(0).components, std::nullopt);
    EXPECT_EQ(groupsIn(R"([{"id": "g1", "name": "G", "components": null}])").at(0).components, std::nullopt);
    EXPECT_EQ(groupsIn(R"([{"id": "g1", "name": "G", "components": []}])").at(0).components, std::vector<Component>{});
}

TEST(ComponentGroup, WithANumericIdFailsItsListWhileAComponentInItMayHaveOne)
{
    EXPECT_EQ(failureOfList<ComponentGroupsResponse>(R"([{"id": 1, "name": "G"}])"),
        typeMismatch("[0].id", "a string", "a number"));
    EXPECT_EQ(groupsIn(R"([{"id": "1", "name": "G", "components": [{"id": 1, "name": "A"}]}])").size(), 1u);
}

TEST(ComponentGroup, WithABadComponentFailsItsList)
{
    EXPECT_EQ(failureOfList<ComponentGroupsResponse>(R"([{"id": "1", "name": "G", "components": [{"id": 1}]}])"),
        keyNotFound("[0].components[0].name"));
}

TEST(ComponentGroup, FailsWithoutANameOrAnId)
{
    EXPECT_EQ(failureOfList<ComponentGroupsResponse>(R"([{"id": "1"}])"), keyNotFound("[0].name"));
    EXPECT_EQ(failureOfList<ComponentGroupsResponse>(R"([{"name": "G"}])"), keyNotFound("[0].id"));
    EXPECT_EQ(failureOfList<ComponentGroupsResponse>(R"([{"id": "1", "name": null}])"),
        valueNotFound("[0].name", "a string"));
}

TEST(ComponentGroupsResponse, HasItsListUnderDataUnderComponentGroupsInEitherSpellingOrBare)
{
    const Groups expected{{.id = "1", .name = "G"}};
    EXPECT_EQ(groupsIn(R"({"data": [{"id": "1", "name": "G"}]})"), expected);
    EXPECT_EQ(groupsIn(R"({"component_groups": [{"id": "1", "name": "G"}]})"), expected);
    EXPECT_EQ(groupsIn(R"({"componentGroups": [{"id": "1", "name": "G"}]})"), expected);
    EXPECT_EQ(groupsIn(R"([{"id": "1", "name": "G"}])"), expected);
}

TEST(ComponentGroupsResponse, IsNotReadFromTheEnvelopeOfComponents)
{
    EXPECT_EQ(failureOfList<ComponentGroupsResponse>(R"({"components": []})").kind, DecodingError::Kind::typeMismatch);
}

}  // namespace

}  // namespace larkspan::model
