#include <gtest/gtest.h>

#include "model/bodies/EmptyResponse.h"
#include "model/bodies/StatusPagesStatusEnvelope.h"
#include "model/json/Decoded.h"
#include "model/records/StatusPage.h"

namespace larkspan::model {

namespace {

using Pages = std::vector<StatusPage>;

const Pages onePage{StatusPage{.id = "p1", .name = "A"}};

TEST(ResultShapes, DataNullForAListYieldsAnEmptyList)
{
    EXPECT_EQ(decoded<Pages>(R"({"data": null})"), Pages{});
    EXPECT_EQ(decoded<Pages>(R"({"id": 7, "data": null, "error": {}})"), Pages{});
}

TEST(ResultShapes, DataNullForASingleRecordYieldsTheErrorOfTheEnvelopedAttempt)
{
    EXPECT_EQ(failureOf<StatusPagesStatusEnvelope>(R"({"data": null})"), valueNotFound("data", "an object"));
}

TEST(ResultShapes, AnEmptyListUnderDataAndABareOneBothYieldAnEmptyList)
{
    EXPECT_EQ(decoded<Pages>(R"({"data": []})"), Pages{});
    EXPECT_EQ(decoded<Pages>("[]"), Pages{});
    EXPECT_EQ(decoded<Pages>(" \t\r\n[ ]\n"), Pages{});
}

TEST(ResultShapes, AnEmptyObjectForAListIsADecodingErrorSinceNoDataKeyIsThere)
{
    EXPECT_EQ(failureOf<Pages>("{}"), keyNotFound("data"));
}

TEST(ResultShapes, BothShapesGiveTheSameRecords)
{
    EXPECT_EQ(decoded<Pages>(R"({"data": [{"id": "p1", "name": "A"}], "next": null})"), onePage);
    EXPECT_EQ(decoded<Pages>(R"([{"id": "p1", "name": "A"}])"), onePage);
}

TEST(ResultShapes, ABareListThatFailsIsReportedWithTheErrorOfTheEnvelopedAttempt)
{
    EXPECT_EQ(failureOf<Pages>(R"([{"id": "p1"}])"),
        (DecodingFailure{
            DecodingError::Kind::typeMismatch, "", "The server’s answer: Expected an object but found a list"}));
}

TEST(ResultShapes, TheKeyOfTheNullRuleIsMatchedRaw)
{
    EXPECT_EQ(failureOf<Pages>(R"({"Data": null})"), keyNotFound("data"));
    EXPECT_EQ(failureOf<Pages>(R"({"data_": null})"), keyNotFound("data"));
}

TEST(ResultShapes, TheNullRuleLooksAtTheTopLevelOnlyAndAtNullOnly)
{
    EXPECT_EQ(failureOf<Pages>(R"({"data": {"data": null}})"), typeMismatch("data", "a list", "an object"));
    EXPECT_EQ(failureOf<Pages>(R"({"data": false})"), typeMismatch("data", "a list", "a boolean"));
    EXPECT_EQ(failureOf<Pages>(R"([{"data": null}])").kind, DecodingError::Kind::typeMismatch);
    EXPECT_EQ(failureOf<Pages>("null").kind, DecodingError::Kind::valueNotFound);
}

TEST(ResultShapes, OfSeveralDataKeysTheFirstCountsInEveryAttempt)
{
    EXPECT_EQ(decoded<Pages>(R"({"data": null, "data": [{"id": "p1", "name": "A"}]})"), Pages{});
    EXPECT_EQ(decoded<Pages>(R"({"data": [{"id": "p1", "name": "A"}], "data": null})"), onePage);
}

TEST(ResultShapes, AnyJSONObjectIsAnEmptyResponse)
{
    for (const std::string body : {"{}", R"({"id": 1})", R"({"data": {}})", R"({"data": null})", R"({"data": []})"}) {
        EXPECT_EQ(decoded<EmptyResponse>(body), EmptyResponse{}) << body;
    }
}

TEST(ResultShapes, WhatIsNoJSONObjectIsNoEmptyResponse)
{
    EXPECT_EQ(failureOf<EmptyResponse>("OK"),
        (DecodingFailure{DecodingError::Kind::dataCorrupted, "", "The server’s answer: Not valid JSON"}));
    EXPECT_EQ(failureOf<EmptyResponse>("[]").description, "The server’s answer: Expected an object but found a list");
    EXPECT_EQ(
        failureOf<EmptyResponse>("\"OK\"").description, "The server’s answer: Expected an object but found a string");
    EXPECT_EQ(failureOf<EmptyResponse>("null").description, "The server’s answer: Expected an object but found null");
}

TEST(ResultShapes, ADecoderCanBeSharedBetweenManyBodies)
{
    fakes::ManualClock clock;
    const JSONDecoder decoder(clock);
    EXPECT_THROW(decoder.decodeResult<Pages>("["), DecodingError);
    EXPECT_EQ(decoder.decodeResult<Pages>(R"([{"id": "p1", "name": "A"}])"), onePage);
    EXPECT_EQ(decoder.decodeResult<EmptyResponse>("{}"), EmptyResponse{});
}

}  // namespace

}  // namespace larkspan::model
