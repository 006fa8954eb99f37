#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "model/bodies/EmptyResponse.h"
#include "model/bodies/MonitorMetricsResponse.h"
#include "model/json/Decoded.h"
#include "model/records/StatusPage.h"
#include "support/Utf8.h"

namespace larkspan::model {

namespace {

using Pages = std::vector<StatusPage>;

std::string repeated(std::string_view text, std::size_t times)
{
    std::string answer;
    answer.reserve(text.size() * times);
    for (; times > 0; --times) answer += text;
    return answer;
}

struct UnreadableRow {
    std::string name;
    std::string body;
    std::string sentence;
};

void PrintTo(const UnreadableRow& row, std::ostream* out)
{
    *out << row.name;
}

class UnreadableBody : public testing::TestWithParam<UnreadableRow> {};

TEST_P(UnreadableBody, IsCorruptedAsAWhole)
{
    EXPECT_EQ(failureOf<Pages>(GetParam().body),
        (DecodingFailure{DecodingError::Kind::dataCorrupted, "", GetParam().sentence}));
    EXPECT_EQ(failureOf<EmptyResponse>(GetParam().body).description, GetParam().sentence);
}

const std::string notJSON = "The server’s answer: Not valid JSON";
const std::string notUTF8 = "The server’s answer: Not valid UTF-8";
const std::string tooDeep = "The server’s answer: Nested too deeply";

INSTANTIATE_TEST_SUITE_P(Text, UnreadableBody,
    testing::Values(UnreadableRow{"empty", "", notJSON}, UnreadableRow{"blank", " \n\t", notJSON},
        UnreadableRow{"a byte order mark alone", "\xEF\xBB\xBF", notJSON},
        UnreadableRow{"two byte order marks", "\xEF\xBB\xBF\xEF\xBB\xBF[]", notJSON},
        UnreadableRow{"a bare word", "OK", notJSON}, UnreadableRow{"a page of HTML", "<html></html>", notJSON},
        UnreadableRow{"cut off", R"([{"id":"p)", notJSON}, UnreadableRow{"cut off in an escape", R"(["\u00)", notJSON},
        UnreadableRow{"more behind the end", "[] []", notJSON}, UnreadableRow{"a comma too many", "[1,]", notJSON},
        UnreadableRow{"a NUL behind the end", std::string("[]\0", 3), notJSON},
        UnreadableRow{"NULs alone", std::string(1000, '\0'), notJSON},
        UnreadableRow{"a raw NUL in a string", std::string("[\"a\0b\"]", 7), notJSON},
        UnreadableRow{"a raw line break in a string", "[\"a\nb\"]", notJSON},
        UnreadableRow{"a lone high surrogate", R"(["\ud800"])", notJSON},
        UnreadableRow{"a lone low surrogate", R"(["\udc00"])", notJSON},
        UnreadableRow{"UTF-16", std::string("[\0]\0", 4), notJSON}, UnreadableRow{"a bare NaN", "[NaN]", notJSON}));

INSTANTIATE_TEST_SUITE_P(Encoding, UnreadableBody,
    testing::Values(UnreadableRow{"a lone continuation", "[\"\x80\"]", notUTF8},
        UnreadableRow{"an overlong form", "[\"\xC0\xAF\"]", notUTF8},
        UnreadableRow{"an encoded surrogate", "[\"\xED\xA0\x80\"]", notUTF8},
        UnreadableRow{"past the last character", "[\"\xF4\x90\x80\x80\"]", notUTF8}));

INSTANTIATE_TEST_SUITE_P(Extremes, UnreadableBody,
    testing::Values(UnreadableRow{"ten thousand lists deep", repeated("[", 10'000) + repeated("]", 10'000), tooDeep},
        UnreadableRow{
            "ten thousand objects deep", repeated(R"({"data":)", 10'000) + '1' + repeated("}", 10'000), tooDeep}));

INSTANTIATE_TEST_SUITE_P(Numbers, UnreadableBody,
    testing::Values(UnreadableRow{"a sign alone", R"({"more":-})", notJSON},
        UnreadableRow{"a zero before a number out of range", R"({"more":01e400})", notJSON},
        UnreadableRow{"nothing behind the point of one", R"({"more":1.e400})", notJSON},
        UnreadableRow{"two numbers in one", R"({"more":1e400-1e400})", notJSON},
        UnreadableRow{"a plus before one", R"({"more":+1})", notJSON},
        UnreadableRow{"a point before one", R"({"more":.5})", notJSON},
        UnreadableRow{"a NUL in place of one", std::string("{\"more\":\0}", 10), notJSON}));

MonitorMetricsWindow windowOf(const std::string& keys)
{
    return decoded<MonitorMetricsResponse>(R"({"metrics":{"m":{)" + keys + "}}}").metrics.at("m");
}

struct RangeRow {
    std::string name;
    std::string number;
};

void PrintTo(const RangeRow& row, std::ostream* out)
{
    *out << row.name;
}

class NumberOutOfRange : public testing::TestWithParam<RangeRow> {
protected:
    const std::string number = GetParam().number;
};

TEST_P(NumberOutOfRange, InAKeyThatNobodyAsksForIsIgnored)
{
    EXPECT_EQ(decoded<Pages>(R"([{"id":"p1","more":)" + number + R"(,"name":"A"}])"),
        (Pages{StatusPage{.id = "p1", .name = "A"}}));
    decoded<EmptyResponse>(R"({"more":[)" + number + "]}");
}

TEST_P(NumberOutOfRange, FailsTheTextThatItStandsFor)
{
    EXPECT_EQ(failureOf<Pages>(R"({"data":[{"id":"p1","name":)" + number + "}]}"),
        typeMismatch("data[0].name", "a string", "a number"));
    EXPECT_EQ(failureOf<Pages>(R"({"data":[{"id":"p1","name":"A","slug":)" + number + "}]}"),
        typeMismatch("data[0].slug", "a string", "a number"));
}

TEST_P(NumberOutOfRange, FailsTheIntegerThatItIsTooLargeFor)
{
    const auto failure = failureOf<Pages>(
        R"({"data":[{"id":"p1","name":"A","metrics":[{"period":"1d","incidents":)" + number + "}]}]}");
    EXPECT_EQ(failure.path, "data[0].metrics[0].incidents");
    EXPECT_TRUE(failure.description.starts_with("data[0].metrics[0].incidents: Not a 64-bit ")) << failure.description;
}

TEST_P(NumberOutOfRange, IsNoList)
{
    EXPECT_EQ(failureOf<Pages>(R"({"data":)" + number + "}"), typeMismatch("data", "a list", "a number"));
    EXPECT_EQ(failureOf<Pages>(number).kind, DecodingError::Kind::typeMismatch);
}

TEST_P(NumberOutOfRange, InATextIsText)
{
    // After an escaped backslash and an escaped quote.
    const auto body = R"([{"id":"p1","more":)" + number + R"(,"name":"\\\" )" + number + R"( \\"}])";
    const bool isKept = decoded<Pages>(body).at(0).name == "\\\" " + number + " \\";
    EXPECT_TRUE(isKept);
}

INSTANTIATE_TEST_SUITE_P(Each, NumberOutOfRange,
    testing::Values(RangeRow{"beyond a double", "1e400"}, RangeRow{"just beyond a double", "9e308"},
        RangeRow{"far below", "-1.5E+99999999999999999999"},
        RangeRow{"beyond 64 bits", "123456789012345678901234567890"},
        RangeRow{"just beyond 64 bits", "18446744073709551616"}, RangeRow{"just below 64 bits", "-9223372036854775809"},
        RangeRow{"many digits and a negative exponent", '1' + std::string(500, '0') + "e-100"},
        RangeRow{"a million digits", std::string(1'000'000, '9')}));

TEST(ANumberOutOfRange, BeyondADoubleFailsADouble)
{
    EXPECT_EQ(failureOf<Pages>(R"({"data":[{"id":"p1","name":"A","metrics":[{"period":"1d","uptime":-1e400}]}]})"),
        dataCorrupted("data[0].metrics[0].uptime", "Not a 64-bit number"));
}

TEST(ANumberOutOfRange, OfAnIntegerIsGoodForADouble)
{
    const auto window = windowOf(R"("avg_ms":123456789012345678901234567890,"apdex":1e400)");
    EXPECT_EQ(window, MonitorMetricsWindow{.avgMs = 123456789012345678901234567890.0});
}

TEST(ANumberOutOfRange, SpoilsNoOtherFigureOfAMonitor)
{
    const auto window = windowOf(
        R"("avg_ms":1e400,"uptime_percentage":99.5,"uptime_trend":-1e999,"latency":[1,18446744073709551616],"state":"up")");
    EXPECT_EQ(window, (MonitorMetricsWindow{.uptimePercentage = 99.5, .state = "up"}));
}

TEST(ANumberOutOfRange, BelowTheLeastDoubleIsZero)
{
    const auto pages = decoded<Pages>(
        R"([{"id":"p1","more":1e400,"name":"A","metrics":[{"period":"1d","uptime":1e-400},{"period":"7d","uptime":5e-324}]}])");
    const auto hasUptime = [](double uptime) { return testing::Field(&StatusPageMetric::uptime, uptime); };
    EXPECT_THAT(pages.at(0).metrics, testing::Optional(testing::ElementsAre(hasUptime(0.0), hasUptime(5e-324))));
}

TEST(ANumberOutOfRange, LeavesTheLargestThatFit)
{
    const auto window = windowOf(
        R"("more":1e400,"avg_ms":1.7976931348623157e308,"latency":[9223372036854775807,-9223372036854775808])");
    EXPECT_EQ(window.avgMs, 1.7976931348623157e308);
    EXPECT_EQ(window.latency, (std::vector<std::int64_t>{INT64_MAX, INT64_MIN}));
}

TEST(HostileBody, AMillionOpenBracketsFailAtOnce)
{
    EXPECT_EQ(failureOf<Pages>(std::string(1'000'000, '[')).kind, DecodingError::Kind::dataCorrupted);
}

TEST(HostileBody, AByteOrderMarkBeforeABodyIsSkipped)
{
    EXPECT_EQ(decoded<Pages>("\xEF\xBB\xBF[]"), Pages{});
}

TEST(HostileBody, UnknownKeysMayBeDeepAndLarge)
{
    const auto body = R"([{"id":"p1","name":"A","more":)" + repeated("[", 900) + repeated("]", 900) + ",\"text\":\""
        + std::string(10'000'000, 'x') + "\"}]";
    EXPECT_EQ(decoded<Pages>(body).size(), 1u);
}

TEST(HostileBody, ALargeTextArrivesWhole)
{
    const std::string name(10'000'000, 'x');
    EXPECT_EQ(decoded<Pages>(R"([{"id":"p1","name":")" + name + "\"}]").at(0).name, name);
}

std::string pagesOf(std::size_t count)
{
    return "[" + repeated(R"({"id":"p","name":"A"},)", count - 1) + R"({"id":"p","name":"A"}])";
}

TEST(HostileBody, HoldsAsManyRecordsAsAScreenShowsAtOnceAndNoMore)
{
    EXPECT_EQ(decoded<Pages>(pagesOf(20'000)).size(), 20'000u);
    for (const auto& body : {pagesOf(20'001), R"({"data":)" + pagesOf(20'001) + "}"}) {
        const auto failure = failureOf<Pages>(body);
        EXPECT_EQ(failure.kind, DecodingError::Kind::dataCorrupted);
        EXPECT_EQ(failure.description, "The server’s answer: More than 20000 records");
    }
}

TEST(HostileBody, HoldsAHundredThousandFiguresAndNoMoreAlsoWhereTheyAreReadForgivingly)
{
    const auto latency = [](std::size_t count) { return R"("latency":[)" + repeated("1,", count - 1) + "1]"; };
    EXPECT_THAT(windowOf(latency(99'999)).latency, testing::Optional(testing::SizeIs(99'999)));
    EXPECT_EQ(failureOf<MonitorMetricsResponse>(R"({"metrics":{"m":{)" + latency(100'000) + "}}}").description,
        "The server’s answer: More than 100000 entries");
}

TEST(HostileBody, AMillionDuplicatesOfAKeyCountAsTheFirst)
{
    const auto body = R"([{"id":"p1")" + repeated(R"(,"name":"A","na_me":0)", 1'000'000) + "}]";
    EXPECT_EQ(decoded<Pages>(body), (Pages{StatusPage{.id = "p1", .name = "A"}}));
}

TEST(HostileBody, ALongTextIsQuotedInPartAndOnOneLine)
{
    const auto failure = failureOf<Pages>(
        R"({"data":[{"id":"p1","name":"A","created_at":"\n)" + std::string(1'000'000, 'x') + "\"}]}");
    EXPECT_EQ(failure.description, "data[0].created_at: Cannot decode date: \uFFFD" + std::string(199, 'x') + "…");
}

TEST(HostileBody, ALongKeyIsNamedInPart)
{
    const auto key = "created" + std::string(1'000'000, '_') + "at";
    const auto failure = failureOf<Pages>(R"({"data":[{"id":"p1","name":"A",")" + key + "\":7}]}");
    EXPECT_EQ(failure.path, "data[0]." + key.substr(0, 64) + "…");
}

/// Bodies one to eight random edits away from a good one.
TEST(HostileBody, EveryDamagedBodyDecodesOrFailsWithAValidSentence)
{
    const std::string good = R"({"data":[{"id":"p1","name":"Grün \u00e4","url":"https://a.example/x?y#z",)"
                             R"("status":"down","created_at":"2026-03-01T09:30:00.123Z",)"
                             R"("metrics":[{"period":"24h","uptime":99.5,"incidents":2}]},{"id":"p2","name":"B"}]})";
    const std::string_view pieces[]
        = {"null", "{", "}", "[", "]", "\"", "\\", ",", ":", "-", "1e", "_", "\xFF", "\\u0000", "data"};
    std::mt19937 random(7);
    const auto below
        = [&random](std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random); };

    int decodedBodies = 0;
    for (int round = 0; round < 20'000; ++round) {
        auto body = good;
        for (auto edits = 1 + below(8); edits > 0; --edits) {
            const auto at = below(body.size());
            switch (below(3)) {
            case 0: body.erase(at, 1 + below(4)); break;
            case 1: body.insert(at, pieces[below(std::size(pieces))]); break;
            default: body[at] = static_cast<char>(below(256)); break;
            }
            if (body.empty()) body += '0';
        }
        try {
            decoded<Pages>(body);
            ++decodedBodies;
        } catch (const DecodingError& error) {
            EXPECT_TRUE(support::isValidUtf8(error.localizedDescription())) << body;
        }
    }
    EXPECT_GT(decodedBodies, 100);
}

}  // namespace

}  // namespace larkspan::model
