#include "server/Control.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Samples.h"
#include "server/Options.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

class ControlOrders : public testing::Test {
protected:
    int order(const std::string& method, const std::string& path, const std::string& body = {})
    {
        return control_.answer({method, "/simulator/" + path, {}, body}).status;
    }

    Reply pages() { return service_.answer(samples::request(samples::pagesPath)); }

    Service service_{samples::account()};
    Identity authority_ = makeAuthority("Test");
    ServerCertificates certificates_{authority_, CertificateKind::valid};
    Control control_{service_, certificates_};
};

TEST_F(ControlOrders, InjectAndClearFaults)
{
    EXPECT_EQ(
        order("POST", "faults", R"({"fault":"status","code":500,"path":"/user/api/v1/status-pages","times":2})"), 204);
    EXPECT_EQ(pages().status, 500);

    EXPECT_EQ(order("DELETE", "faults"), 204);
    EXPECT_EQ(pages().status, 200);
}

TEST_F(ControlOrders, ReplaceThePages)
{
    EXPECT_EQ(order("PUT", "pages", R"({"pages":[{"id":"x","name":"Ünique","health":"degraded"}]})"), 204);
    service_.setShape(ResultShape::bare);
    EXPECT_EQ(pages().body, R"([{"id":"x","name":"Ünique","status":"degraded"}])");

    EXPECT_EQ(order("PUT", "pages", R"({"seed":"large"})"), 204);
    EXPECT_EQ(parsedJson(pages().body).size(), 1'000u);
}

TEST_F(ControlOrders, SeedRecordsWhoseIdsBeginAsTold)
{
    EXPECT_EQ(order("PUT", "pages", R"({"seed":"tiny","id_prefix":"an_"})"), 204);
    service_.withAccount([](Account& account) {
        EXPECT_TRUE(account.findPage("an_page-1"));
        EXPECT_TRUE(account.findMonitor("an_1"));
        EXPECT_FALSE(account.findMonitor("1"));
    });
}

TEST_F(ControlOrders, ChangeOnePage)
{
    EXPECT_EQ(order("PATCH", "pages/page-2", R"({"health":"major-outage","name":"Renamed"})"), 204);
    EXPECT_EQ(order("PATCH", "pages/page-3", R"({"status":"odd","code":"Operational","label":"?"})"), 204);

    service_.withAccount([](Account& account) {
        EXPECT_EQ(account.findPage("page-2")->status, "down");
        EXPECT_EQ(account.findPage("page-2")->name, "Renamed");
        EXPECT_EQ(account.findPage("page-3")->status, "odd");
        EXPECT_EQ(account.findPage("page-3")->overview->code, "Operational");
    });
}

TEST_F(ControlOrders, ReplaceTheKeys)
{
    EXPECT_EQ(order("PUT", "keys", R"({"kst_test_key":"none","other":"full"})"), 204);

    EXPECT_EQ(pages().status, 403);
    EXPECT_EQ(service_.answer(samples::request(samples::pagesPath, "GET", "other")).status, 200);
}

TEST_F(ControlOrders, TellAndForgetTheRequests)
{
    pages();
    EXPECT_EQ(order("DELETE", "requests"), 204);

    EXPECT_EQ(control_.answer({"GET", "/simulator/requests", {}, {}}).body, "[]");
}

struct BadOrderRow {
    std::string method;
    std::string path;
    std::string body;
    std::string error;
};

class BadOrders : public ControlOrders, public testing::WithParamInterface<BadOrderRow> {};

TEST_P(BadOrders, AreAnsweredWithWhatIsWrongAndChangeNothing)
{
    const auto before = pages().body;

    const auto reply = control_.answer({GetParam().method, "/simulator/" + GetParam().path, {}, GetParam().body});

    EXPECT_EQ(reply.status, 400);
    EXPECT_EQ(parsedJson(reply.body), Json::object({{"error", GetParam().error}}));
    EXPECT_EQ(pages().body, before);
}

INSTANTIATE_TEST_SUITE_P(EachMistake, BadOrders,
    testing::Values(BadOrderRow{"POST", "faults", R"({"fault":"flood"})", R"(There is no fault "flood".)"},
        BadOrderRow{"POST", "faults", R"({"code":500})", R"("fault" is missing.)"},
        BadOrderRow{"POST", "faults", R"({"fault":"status"})", R"("code" is missing.)"},
        BadOrderRow{"POST", "faults", R"({"fault":"status","code":"500"})", R"("code" is no whole number from 0.)"},
        BadOrderRow{"POST", "faults", R"({"fault":"redirect"})", R"("location" is missing.)"},
        BadOrderRow{"POST", "faults", R"({"fault":"body","text":1})", R"("text" is no text.)"},
        BadOrderRow{"POST", "faults", R"({"fault":"huge_body","packed":1})", R"("packed" is neither true nor false.)"},
        BadOrderRow{"PUT", "pages", R"({"pages":[{"id":"a","name":"A"},{"id":"b"}]})", R"("name" is missing.)"},
        BadOrderRow{"PUT", "pages", R"({"pages":1})", R"("pages" is no list.)"},
        BadOrderRow{"PUT", "pages", R"({"seed":"huge"})", "There is no such seed."},
        BadOrderRow{"PATCH", "pages/nobody", R"({"name":"A"})", "There is no such page."},
        BadOrderRow{"PATCH", "pages/page-1", R"({"health":"fine"})", R"(There is no health "fine".)"},
        BadOrderRow{"PUT", "keys", R"({"a":"some"})", R"(A key's rights are "full" or "none".)"},
        BadOrderRow{"PUT", "shape", R"({"shape":"round"})", R"(There is no shape "round".)"},
        BadOrderRow{"PUT", "certificate", R"({"certificate":"gold"})", "There is no such certificate."}));

TEST_F(ControlOrders, TellOfARequestWhoseBytesAreNoTextToo)
{
    service_.answer({"POST", samples::pagesPath, {}, "\xff{}"});

    const auto requests = parsedJson(control_.answer({"GET", "/simulator/requests", {}, {}}).body);

    EXPECT_EQ(requests.at(0).at("body"), Json("\uFFFD{}"));
}

class OrdersThatAreNoJson : public ControlOrders, public testing::WithParamInterface<const char*> {};

TEST_P(OrdersThatAreNoJson, AreBad)
{
    const auto reply = control_.answer({"POST", "/simulator/faults", {}, GetParam()});

    EXPECT_EQ(reply.status, 400);
    EXPECT_TRUE(parsedJson(reply.body).at("error").is_string());
}

INSTANTIATE_TEST_SUITE_P(EachMistake, OrdersThatAreNoJson,
    testing::Values("", "status", R"({"fault":)", R"({"fault":"hang"} {})", "\"\xff\xfe\"", R"({"times":1e999})"));

struct FaultNameRow {
    std::string json;
    std::size_t kind;
};

class FaultNames : public testing::TestWithParam<FaultNameRow> {};

TEST_P(FaultNames, StandForTheirFaults)
{
    EXPECT_EQ(readFaultRule(parsedJson(GetParam().json)).fault.index(), GetParam().kind);
}

template <typename Kind>
constexpr std::size_t kindOf()
{
    return Fault(Kind{}).index();
}

INSTANTIATE_TEST_SUITE_P(EachName, FaultNames,
    testing::Values(FaultNameRow{R"({"fault":"status","code":500})", kindOf<fault::Status>()},
        FaultNameRow{R"({"fault":"delay"})", kindOf<fault::Delay>()},
        FaultNameRow{R"({"fault":"hang"})", kindOf<fault::Hang>()},
        FaultNameRow{R"({"fault":"drip"})", kindOf<fault::Drip>()},
        FaultNameRow{R"({"fault":"reset"})", kindOf<fault::Reset>()},
        FaultNameRow{R"({"fault":"truncation"})", kindOf<fault::Truncation>()},
        FaultNameRow{R"({"fault":"closed_before_first_byte"})", kindOf<fault::ClosedBeforeFirstByte>()},
        FaultNameRow{R"({"fault":"not_http"})", kindOf<fault::NotHttp>()},
        FaultNameRow{R"({"fault":"body"})", kindOf<fault::Body>()},
        FaultNameRow{R"({"fault":"garbage"})", kindOf<fault::Garbage>()},
        FaultNameRow{R"({"fault":"wrong_shape"})", kindOf<fault::WrongShape>()},
        FaultNameRow{R"({"fault":"bad_element"})", kindOf<fault::BadElement>()},
        FaultNameRow{R"({"fault":"deep_nesting"})", kindOf<fault::DeepNesting>()},
        FaultNameRow{R"({"fault":"huge_body"})", kindOf<fault::HugeBody>()},
        FaultNameRow{R"({"fault":"redirect","location":"/"})", kindOf<fault::Redirect>()}));

TEST(FaultRule, ReadsWhatTheFaultNeedsAndWhomItBefalls)
{
    const auto rule = readFaultRule(
        parsedJson(R"({"fault":"drip","bytes":7,"milliseconds":30,"path":"/a","method":"GET","times":4})"));

    EXPECT_EQ(std::get<fault::Drip>(rule.fault).bytes, 7u);
    EXPECT_EQ(std::get<fault::Drip>(rule.fault).pause, 30ms);
    EXPECT_EQ(rule.path, "/a");
    EXPECT_EQ(rule.method, "GET");
    EXPECT_EQ(rule.times, 4);
}

TEST(Options, AreReadInAnyOrder)
{
    const auto asked = readOptions({"--live", "--seed", "10000", "--port", "8443", "--host", "h.example", "--key", "k",
        "--shape", "bare", "--certificate", "wrong-name", "--directory", "/d"});

    const auto& options = std::get<Options>(asked);
    EXPECT_EQ(options.port, 8443);
    EXPECT_EQ(options.host, "h.example");
    EXPECT_EQ(options.seed, "10000");
    EXPECT_EQ(options.key, "k");
    EXPECT_EQ(options.shape, ResultShape::bare);
    EXPECT_EQ(options.certificate, CertificateKind::wrongName);
    EXPECT_EQ(options.directory, "/d");
    EXPECT_TRUE(options.isLiving);
}

TEST(Options, ThatAreWrongAreExplained)
{
    const std::vector<std::vector<std::string>> wrong{{"--nope"}, {"--port"}, {"--port", "70000"}, {"--port", "1x"},
        {"--host", "h.example,IP:1.2.3.4"}, {"--seed", "huge"}, {"--shape", "round"}, {"--certificate", "gold"},
        {"--key", ""}};
    for (const auto& arguments : wrong) {
        const auto asked = readOptions(arguments);
        ASSERT_TRUE(std::holds_alternative<Explanation>(asked)) << arguments.front();
        EXPECT_TRUE(std::get<Explanation>(asked).isError);
        EXPECT_THAT(std::get<Explanation>(asked).text, testing::HasSubstr(arguments.front()));
    }
}

TEST(Options, WithHelpAreExplainedWithoutAnError)
{
    EXPECT_FALSE(std::get<Explanation>(readOptions({"--help"})).isError);
}

}  // namespace
}  // namespace larkspan::simulator
