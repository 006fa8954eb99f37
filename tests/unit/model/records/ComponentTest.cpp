#include "model/records/Component.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using Components = std::vector<Component>;

/// A list of one component with the required keys and `more`.
std::string componentWith(const std::string& more)
{
    return R"([{"id":"c1","name":"API")" + (more.empty() ? more : ',' + more) + "}]";
}

Component componentDecodedWith(const std::string& more)
{
    return decodedList<ComponentsResponse>(componentWith(more)).at(0);
}

DecodingFailure failureWith(const std::string& more)
{
    return failureOfList<ComponentsResponse>(componentWith(more));
}

TEST(Component, ReadsEveryField)
{
    EXPECT_EQ(componentDecodedWith(R"("description":"Ours","monitor_state":"partialoutage","component_group_id":"g1",
        "url":"not a url")"),
        (Component{.id = "c1",
            .name = "API",
            .description = "Ours",
            .status = "partialoutage",
            .groupId = "g1",
            .url = "not a url"}));
}

TEST(Component, OfAnIdAndANameAloneHasStatusUnknownAndNoGroup)
{
    const Component expected{.id = "5", .name = "API", .status = "unknown"};
    EXPECT_EQ(decodedList<ComponentsResponse>(R"([{"id": 5, "name": "API"}])"), Components{expected});
}

TEST(Component, TakesNullInAnyOptionalKeyForAMissingOne)
{
    EXPECT_EQ(componentDecodedWith(R"("description":null,"monitor_state":null,"component_group_id":null,"url":null)"),
        componentDecodedWith(""));
}

TEST(Component, HasNoGroupWhereTheGroupsIdIsBlank)
{
    EXPECT_EQ(componentDecodedWith(R"("component_group_id":"   ")").groupId, std::nullopt);
    EXPECT_EQ(componentDecodedWith(R"("component_group_id":"")").groupId, std::nullopt);
    EXPECT_EQ(componentDecodedWith(R"("component_group_id":"\n\t\u2028")").groupId, std::nullopt);
}

TEST(Component, HasItsGroupsIdWithoutWhiteSpaceAndLineBreaksAroundIt)
{
    EXPECT_EQ(componentDecodedWith(R"("component_group_id":"  7 ")").groupId, "7");
    EXPECT_EQ(componentDecodedWith(R"("component_group_id":"\n7 8\r\n")").groupId, "7 8");
}

TEST(Component, IsNotReadFromTheKeysThatRequestsWrite)
{
    EXPECT_EQ(componentDecodedWith(R"("status":"x","group_id":"g1")"), componentDecodedWith(""));
    EXPECT_EQ(componentDecodedWith(R"("status":"x")").status, "unknown");
}

TEST(Component, KeepsEmptyTextsAsTheyCome)
{
    const auto component = componentDecodedWith(R"("description":"","monitor_state":"","url":"")");
    EXPECT_EQ(component.description, "");
    EXPECT_EQ(component.status, "");
    EXPECT_EQ(component.url, "");
}

struct ComponentRow {
    std::string component;
    DecodingFailure failure;
};

void PrintTo(const ComponentRow& row, std::ostream* out)
{
    *out << row.component;
}

class ComponentKey : public testing::TestWithParam<ComponentRow> {};

TEST_P(ComponentKey, FailsItsWholeListWhenItIsWrong)
{
    EXPECT_EQ(
        failureOfList<ComponentsResponse>(R"([{"id":1,"name":"A"},)" + GetParam().component + ']'), GetParam().failure);
}

INSTANTIATE_TEST_SUITE_P(Each, ComponentKey,
    testing::Values(ComponentRow{R"({"name":"B"})", keyNotFound("[1].id")},
        ComponentRow{R"({"id":null})", valueNotFound("[1].id", "a string")},
        ComponentRow{R"({"id":4.5})", typeMismatch("[1].id", "a string", "a number")},
        ComponentRow{R"({"id":"c"})", keyNotFound("[1].name")},
        ComponentRow{R"({"id":"c","name":null})", valueNotFound("[1].name", "a string")},
        ComponentRow{R"({"id":"c","name":1})", typeMismatch("[1].name", "a string", "a number")}));

TEST(Component, FailsWithANumberInAnyOptionalText)
{
    for (const std::string key : {"description", "monitor_state", "component_group_id", "url"}) {
        EXPECT_EQ(failureWith('"' + key + "\":1"), typeMismatch("[0]." + key, "a string", "a number"));
    }
}

TEST(ComponentsResponse, HasItsListUnderDataUnderComponentsOrBare)
{
    const Components expected{{.id = "1", .name = "A"}};
    EXPECT_EQ(decodedList<ComponentsResponse>(R"({"data": [{"id": 1, "name": "A"}]})"), expected);
    EXPECT_EQ(decodedList<ComponentsResponse>(R"({"components": [{"id": 1, "name": "A"}]})"), expected);
    EXPECT_EQ(decodedList<ComponentsResponse>(R"([{"id": 1, "name": "A"}])"), expected);
}

TEST(ComponentsResponse, OfSeveralShapesAtOnceCountsAsTheFirstThatReads)
{
    EXPECT_EQ(decodedList<ComponentsResponse>(R"({"components": [{"id": 1, "name": "A"}], "data": []})"), Components{});
    EXPECT_EQ(decodedList<ComponentsResponse>(R"({"components": [{"id": 1, "name": "A"}], "data": 7})").size(), 1u);
}

TEST(ComponentsResponse, FailsWithTheErrorOfTheBareAttempt)
{
    const auto noList = [](const std::string& found) {
        return DecodingFailure{
            DecodingError::Kind::typeMismatch, "", "The server’s answer: Expected a list but found " + found};
    };
    EXPECT_EQ(failureOfList<ComponentsResponse>(R"({"data": [{"id": 1}]})"), noList("an object"));
    EXPECT_EQ(failureOfList<ComponentsResponse>(R"({"components": [{"id": 1}]})"), noList("an object"));
    EXPECT_EQ(failureOfList<ComponentsResponse>(R"([{"id": 1}])"), keyNotFound("[0].name"));
}

TEST(ComponentsResponse, KnowsNoNullRule)
{
    EXPECT_EQ(failureOfList<ComponentsResponse>(R"({"data": null})").kind, DecodingError::Kind::typeMismatch);
    EXPECT_EQ(failureOfList<ComponentsResponse>(R"({"components": null})").kind, DecodingError::Kind::typeMismatch);
    EXPECT_EQ(failureOfList<ComponentsResponse>("null").kind, DecodingError::Kind::valueNotFound);
}

TEST(ComponentsResponse, OfAnEmptyBodyIsADecodingError)
{
    EXPECT_EQ(failureOfList<ComponentsResponse>(""),
        (DecodingFailure{DecodingError::Kind::dataCorrupted, "", "The server’s answer: Not valid JSON"}));
}

}  // namespace

}  // namespace larkspan::model
