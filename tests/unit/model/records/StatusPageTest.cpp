#include "model/records/StatusPage.h"

#include <gtest/gtest.h>

#include "model/json/Decoded.h"

namespace larkspan::model {

namespace {

using namespace std::chrono_literals;

using Pages = std::vector<StatusPage>;

/// A list of one page with the required keys and `more`.
std::string pageWith(const std::string& more)
{
    return R"([{"id":"p1","name":"Public")" + (more.empty() ? more : ',' + more) + "}]";
}

StatusPage pageDecodedWith(const std::string& more)
{
    return decoded<Pages>(pageWith(more)).at(0);
}

/// Fails in the shape `{"data": [...]}`, for which the first attempt's error names the place.
DecodingFailure failureWith(const std::string& more)
{
    return failureOf<Pages>("{\"data\":" + pageWith(more) + '}');
}

DecodingFailure failureOfPage(const std::string& page)
{
    return failureOf<Pages>("{\"data\":[" + page + "]}");
}

TEST(StatusPage, ReadsEveryField)
{
    const auto pages = decoded<Pages>(R"({"data": [{
        "id": "p1", "name": "Public", "slug": "public", "url": "https://status.example.com", "description": "Ours",
        "status": "degraded", "created_at": "2026-03-01T09:30:00Z", "updated_at": "2026-03-01T09:30:00.5Z",
        "metrics": [{"period": "24h", "uptime": 99.5, "incidents": 2}]}]})");

    const support::Time created = std::chrono::sys_days{2026y / 3 / 1} + 9h + 30min;
    EXPECT_EQ(pages,
        Pages{(StatusPage{.id = "p1",
            .name = "Public",
            .slug = "public",
            .url = URL::parse("https://status.example.com"),
            .description = "Ours",
            .status = StatusPageStatus::degraded,
            .createdAt = created,
            .updatedAt = created + 500ms,
            .metrics = {{StatusPageMetric{.period = "24h", .uptime = 99.5, .incidents = 2}}}})});
}

TEST(StatusPage, WithOnlyItsRequiredKeysHasStatusUnknownAndNothingElse)
{
    EXPECT_EQ(pageDecodedWith(""), (StatusPage{.id = "p1", .name = "Public"}));
    EXPECT_EQ(pageDecodedWith("").status, StatusPageStatus::unknown);
}

TEST(StatusPage, TakesNullInAnyOptionalKeyForAMissingOne)
{
    EXPECT_EQ(pageDecodedWith(R"("slug":null,"url":null,"description":null,"status":null,"created_at":null,
        "updated_at":null,"metrics":null)"),
        pageDecodedWith(""));
}

TEST(StatusPage, TakesAWireKeySpelledLikeTheKeyNameTheSame)
{
    EXPECT_EQ(pageDecodedWith(R"("createdAt":"2026-03-01T09:30:00Z")"),
        pageDecodedWith(R"("created_at":"2026-03-01T09:30:00Z")"));
    EXPECT_TRUE(pageDecodedWith(R"("createdAt":"2026-03-01T09:30:00Z")").createdAt);
}

TEST(StatusPage, IgnoresKeysThatItDoesNotAskFor)
{
    EXPECT_EQ(pageDecodedWith(R"("_id":7,"Id":7,"created_at_":7,"more":{"id":[]},"":0)"), pageDecodedWith(""));
}

TEST(StatusPage, TakesTheFirstOfKeysThatConvertAlike)
{
    EXPECT_EQ(pageDecodedWith(R"("slug":"first","slug":"second")").slug, "first");
    EXPECT_EQ(pageDecodedWith(R"("slug":"first","slug":7)").slug, "first");
    EXPECT_EQ(pageDecodedWith(R"("slug":null,"slug":"second")").slug, std::nullopt);
    EXPECT_EQ(pageDecodedWith(R"("created_at":null,"createdAt":"n/a")").createdAt, std::nullopt);
}

TEST(StatusPage, KeepsEmptyTexts)
{
    const auto page = decoded<Pages>(R"([{"id":"","name":"","slug":"","description":""}])").at(0);
    EXPECT_EQ(page, (StatusPage{.id = "", .name = "", .slug = "", .description = ""}));
}

TEST(StatusPage, KeepsEscapedCharactersAndNULInTexts)
{
    const auto page = decoded<Pages>(R"([{"id":"a\u0000b","name":"\ud83d\ude00\n\"ä"}])").at(0);
    EXPECT_EQ(page.id, std::string("a\0b", 3));
    EXPECT_EQ(page.name, "😀\n\"ä");
}

TEST(StatusPage, FailsWithoutAnId)
{
    EXPECT_EQ(failureOfPage(R"({"name":"Public"})"), keyNotFound("data[0].id"));
    EXPECT_EQ(failureOfPage(R"({"id":null,"name":"Public"})"), valueNotFound("data[0].id", "a string"));
}

TEST(StatusPage, FailsWithANumberAsItsId)
{
    EXPECT_EQ(failureOfPage(R"({"id":7,"name":"Public"})"), typeMismatch("data[0].id", "a string", "a number"));
}

TEST(StatusPage, FailsWithoutAName)
{
    EXPECT_EQ(failureOfPage(R"({"id":"p1"})"), keyNotFound("data[0].name"));
    EXPECT_EQ(failureOfPage(R"({"id":"p1","name":null})"), valueNotFound("data[0].name", "a string"));
    EXPECT_EQ(failureOfPage(R"({"id":"p1","name":[]})"), typeMismatch("data[0].name", "a string", "a list"));
}

struct WrongTypeRow {
    std::string member;
    DecodingFailure failure;
};

void PrintTo(const WrongTypeRow& row, std::ostream* out)
{
    *out << row.member;
}

class StatusPageField : public testing::TestWithParam<WrongTypeRow> {};

TEST_P(StatusPageField, OfTheWrongTypeFailsTheList)
{
    EXPECT_EQ(failureWith(GetParam().member), GetParam().failure);
}

INSTANTIATE_TEST_SUITE_P(EachOptional, StatusPageField,
    testing::Values(WrongTypeRow{R"("slug":1)", typeMismatch("data[0].slug", "a string", "a number")},
        WrongTypeRow{R"("url":{})", typeMismatch("data[0].url", "a string", "an object")},
        WrongTypeRow{R"("url":"not a url")", dataCorrupted("data[0].url", "Not a valid URL: not a url")},
        WrongTypeRow{R"("url":"")", dataCorrupted("data[0].url", "Not a valid URL: ")},
        WrongTypeRow{R"("description":true)", typeMismatch("data[0].description", "a string", "a boolean")},
        WrongTypeRow{R"("status":1.5)", typeMismatch("data[0].status", "a string", "a number")},
        WrongTypeRow{R"("created_at":1772357400)", typeMismatch("data[0].created_at", "a string", "a number")},
        WrongTypeRow{R"("createdAt":18446744073709551615)", typeMismatch("data[0].createdAt", "a string", "a number")},
        WrongTypeRow{R"("updated_at":"")", dataCorrupted("data[0].updated_at", "Cannot decode date: ")},
        WrongTypeRow{R"("metrics":{})", typeMismatch("data[0].metrics", "a list", "an object")},
        WrongTypeRow{R"("metrics":[null])", valueNotFound("data[0].metrics[0]", "an object")},
        WrongTypeRow{
            R"("metrics":[{"period":"a"},"b"])", typeMismatch("data[0].metrics[1]", "an object", "a string")}));

class StatusOfAPage : public testing::TestWithParam<std::pair<std::string, StatusPageStatus>> {};

TEST_P(StatusOfAPage, IsReadFromItsWireText)
{
    EXPECT_EQ(pageDecodedWith("\"status\":\"" + GetParam().first + '"').status, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(EachCase, StatusOfAPage,
    testing::Values(std::pair{"operational", StatusPageStatus::operational},
        std::pair{"degraded", StatusPageStatus::degraded}, std::pair{"down", StatusPageStatus::down},
        std::pair{"maintenance", StatusPageStatus::maintenance}, std::pair{"unknown", StatusPageStatus::unknown}));

TEST(StatusPage, WithStatusMajorOutageFailsTheListAsItIsNoWordOfAPage)
{
    const auto failure = failureOf<Pages>(
        R"({"data":[{"id":"p1","name":"A","status":"down"},{"id":"p2","name":"B","status":"major-outage"}]})");
    EXPECT_EQ(failure, dataCorrupted("data[1].status", "Unknown word: major-outage"));
}

TEST(StatusPage, ComparesItsStatusExactly)
{
    for (const std::string word : {"Operational", "DOWN", " down", "down ", ""}) {
        EXPECT_EQ(failureWith("\"status\":\"" + word + '"'), dataCorrupted("data[0].status", "Unknown word: " + word));
    }
}

TEST(StatusPage, ReadsBothFormsOfADate)
{
    const support::Time halfPastNine = std::chrono::sys_days{2026y / 3 / 1} + 9h + 30min;
    EXPECT_EQ(pageDecodedWith(R"("created_at":"2026-03-01T09:30:00.123Z")").createdAt, halfPastNine + 123ms);
    EXPECT_EQ(pageDecodedWith(R"("created_at":"2026-03-01T09:30:00Z")").createdAt, halfPastNine);
}

TEST(StatusPage, FailsWithADateOfNeitherForm)
{
    EXPECT_EQ(failureWith(R"("created_at":"2026-03-01")"),
        dataCorrupted("data[0].created_at", "Cannot decode date: 2026-03-01"));
}

TEST(StatusPageMetric, FailsWithoutAPeriod)
{
    EXPECT_EQ(failureWith(R"("metrics":[{}])"), keyNotFound("data[0].metrics[0].period"));
    EXPECT_EQ(failureWith(R"("metrics":[{"period":null}])"), valueNotFound("data[0].metrics[0].period", "a string"));
    EXPECT_EQ(
        failureWith(R"("metrics":[{"period":24}])"), typeMismatch("data[0].metrics[0].period", "a string", "a number"));
}

TEST(StatusPageMetric, HasNoFiguresWhereTheyAreMissingOrNull)
{
    const auto metrics
        = pageDecodedWith(R"("metrics":[{"period":"a"},{"period":"b","uptime":null,"incidents":null}])").metrics;
    EXPECT_EQ(metrics, (std::vector{StatusPageMetric{.period = "a"}, StatusPageMetric{.period = "b"}}));
}

StatusPageMetric metricWith(const std::string& member)
{
    return pageDecodedWith(R"("metrics":[{"period":"a",)" + member + "}]").metrics.value().at(0);
}

TEST(StatusPageMetric, TakesEveryJSONNumberAsItsUptime)
{
    EXPECT_EQ(metricWith(R"("uptime":99.95)").uptime, 99.95);
    EXPECT_EQ(metricWith(R"("uptime":100)").uptime, 100.0);
    EXPECT_EQ(metricWith(R"("uptime":-1e-3)").uptime, -0.001);
    EXPECT_EQ(metricWith(R"("uptime":18446744073709551615)").uptime, 18446744073709551615.0);
}

TEST(StatusPageMetric, TakesNoTextAndNoBooleanForANumber)
{
    EXPECT_EQ(failureWith(R"("metrics":[{"period":"a","uptime":"99"}])"),
        typeMismatch("data[0].metrics[0].uptime", "a number", "a string"));
    EXPECT_EQ(failureWith(R"("metrics":[{"period":"a","uptime":true}])"),
        typeMismatch("data[0].metrics[0].uptime", "a number", "a boolean"));
    EXPECT_EQ(failureWith(R"("metrics":[{"period":"a","incidents":true}])"),
        typeMismatch("data[0].metrics[0].incidents", "an integer", "a boolean"));
    EXPECT_EQ(failureWith(R"("metrics":[{"period":"a","incidents":"2"}])"),
        typeMismatch("data[0].metrics[0].incidents", "an integer", "a string"));
}

TEST(StatusPageMetric, TakesEvery64BitIntegerAsItsIncidents)
{
    EXPECT_EQ(metricWith(R"("incidents":0)").incidents, 0);
    EXPECT_EQ(metricWith(R"("incidents":-9223372036854775808)").incidents, std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(metricWith(R"("incidents":9223372036854775807)").incidents, std::numeric_limits<std::int64_t>::max());
}

TEST(StatusPageMetric, TakesANumberWithAFractionOfZeroAsItsIncidentsWhileADoubleIsExact)
{
    EXPECT_EQ(metricWith(R"("incidents":1.0)").incidents, 1);
    EXPECT_EQ(metricWith(R"("incidents":-2e3)").incidents, -2000);
    EXPECT_EQ(metricWith(R"("incidents":-0.0)").incidents, 0);
    EXPECT_EQ(metricWith(R"("incidents":9007199254740991.0)").incidents, 9'007'199'254'740'991);
}

TEST(StatusPageMetric, FailsWithIncidentsThatAreNo64BitInteger)
{
    const auto failure = [](const std::string& number) {
        return failureWith(R"("metrics":[{"period":"a","incidents":)" + number + "}]");
    };
    const std::string path = "data[0].metrics[0].incidents";
    EXPECT_EQ(failure("2.5"), dataCorrupted(path, "Not a 64-bit integer: 2.5"));
    EXPECT_EQ(failure("9007199254740992.0"), dataCorrupted(path, "Not a 64-bit integer: 9007199254740992"));
    EXPECT_EQ(failure("-1e300"), dataCorrupted(path, "Not a 64-bit integer: -1e+300"));
    EXPECT_EQ(failure("9223372036854775808").kind, DecodingError::Kind::dataCorrupted);
}

}  // namespace

}  // namespace larkspan::model
