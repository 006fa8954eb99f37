#include "inprocess/InProcessTransport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ManualDelays.h"
#include "Samples.h"
#include "fakes/ManualExecutor.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;
using Code = platform::URLError::Code;
using Result = platform::HttpTransport::Result;

class InProcess : public testing::Test {
protected:
    void send(const std::string& url = "https://kestrune.example/user/api/v1/status-pages", std::stop_token stop = {},
        std::string method = "GET")
    {
        platform::HttpRequest request{std::move(method), url, samples::request("").headers, std::nullopt};
        transport_->send(std::move(request), std::move(stop), [this](Result result) {
            ++completions_;
            result_ = std::move(result);
        });
    }

    void pass(std::chrono::milliseconds span)
    {
        delays_.advance(span);
        executor_.run();
    }

    std::optional<int> status() const
    {
        const auto* response = result_ ? std::get_if<platform::HttpResponse>(&*result_) : nullptr;
        return response ? response->status : std::nullopt;
    }

    std::optional<Code> failure() const
    {
        const auto* code = result_ ? std::get_if<Code>(&*result_) : nullptr;
        return code ? std::optional(*code) : std::nullopt;
    }

    Service service_{samples::account()};
    fakes::ManualExecutor executor_;
    ManualDelays delays_;
    std::optional<InProcessTransport> transport_{std::in_place, service_, executor_, delays_};
    std::optional<Result> result_;
    int completions_ = 0;
};

TEST_F(InProcess, CompletesOnTheExecutorAndNeverInsideTheSend)
{
    send();
    EXPECT_EQ(completions_, 0);

    executor_.run();

    EXPECT_EQ(completions_, 1);
    EXPECT_EQ(status(), 200);
    EXPECT_EQ(service_.received().at(0).target, "/user/api/v1/status-pages");
    EXPECT_EQ(service_.received().at(0).header("X-API-Key"), samples::key);
}

TEST_F(InProcess, SendsMethodBodyAndQueryAsTheyAre)
{
    platform::HttpRequest request{"PATCH", "https://kestrune.example/user/api/x?ids=a,b", {}, "{}"};
    transport_->send(std::move(request), {}, [](const Result&) {});
    executor_.run();

    EXPECT_EQ(service_.received().at(0).method, "PATCH");
    EXPECT_EQ(service_.received().at(0).target, "/user/api/x?ids=a,b");
    EXPECT_EQ(service_.received().at(0).body, "{}");
}

TEST_F(InProcess, WaitsOutADelay)
{
    service_.inject({fault::Delay{29s}});
    send();
    executor_.run();

    pass(28'999ms);
    EXPECT_EQ(completions_, 0);
    pass(1ms);
    EXPECT_EQ(status(), 200);
}

struct FailureRow {
    std::string_view name;
    Fault fault;
    std::chrono::milliseconds after;
    Code code;
};

class InProcessFailure : public InProcess, public testing::WithParamInterface<FailureRow> {};

TEST_P(InProcessFailure, ComesAsTheNetworkWouldReportIt)
{
    service_.inject({GetParam().fault});
    send();
    executor_.run();

    if (GetParam().after > 0ms) {
        pass(GetParam().after - 1ms);
        EXPECT_EQ(completions_, 0);
        pass(1ms);
    }
    EXPECT_EQ(failure(), GetParam().code);
    EXPECT_EQ(service_.received().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(EachFault, InProcessFailure,
    testing::Values(FailureRow{"Hang", fault::Hang{}, 30s, Code::timedOut},
        FailureRow{"LongDelay", fault::Delay{31s}, 30s, Code::timedOut},
        FailureRow{"Drip", fault::Drip{1, 1s}, 60s, Code::timedOut},
        FailureRow{"SlowDrip", fault::Drip{1, 31s}, 30s, Code::timedOut},
        FailureRow{"Reset", fault::Reset{}, 0s, Code::networkConnectionLost},
        FailureRow{"Truncation", fault::Truncation{}, 0s, Code::networkConnectionLost},
        FailureRow{"Closed", fault::ClosedBeforeFirstByte{}, 0s, Code::networkConnectionLost},
        FailureRow{"NotHttp", fault::NotHttp{}, 0s, Code::badServerResponse},
        FailureRow{"HugeBody", fault::HugeBody{}, 0s, Code::dataLengthExceedsMaximum},
        FailureRow{"PackedHugeBody", fault::HugeBody{200'000'000, true}, 0s, Code::dataLengthExceedsMaximum}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(InProcess, LetsAQuickDripThrough)
{
    service_.inject({fault::Drip{100, 10ms}});
    send();
    executor_.run();
    EXPECT_EQ(completions_, 0);

    pass(1s);
    EXPECT_EQ(status(), 200);
}

TEST_F(InProcess, FollowsARedirectWithinTheOrigin)
{
    service_.inject({fault::Redirect{"/user/api/status-pages/status"}, samples::pagesPath});
    send();
    executor_.run();

    EXPECT_EQ(status(), 200);
    EXPECT_EQ(service_.received().at(1).target, samples::overviewPath);
    EXPECT_EQ(service_.received().at(1).header("X-API-Key"), samples::key);
}

TEST_F(InProcess, AnswersARedirectBeyondTheOriginAsItsStatus)
{
    for (const auto* place : {"https://kestrune.example:444/x", "http://kestrune.example/x", "//other.example/x"}) {
        service_.clearFaults();
        service_.forgetReceived();
        service_.inject({fault::Redirect{place}});
        send();
        executor_.run();

        EXPECT_EQ(status(), 302) << place;
        EXPECT_EQ(service_.received().size(), 1u) << place;
    }
}

TEST_F(InProcess, FollowsTenRedirectsAtMost)
{
    service_.inject({fault::Redirect{"/user/api/v1/status-pages"}});
    send();
    executor_.run();

    EXPECT_EQ(status(), 302);
    EXPECT_EQ(service_.received().size(), 11u);
}

struct RedirectedWriteRow {
    int code;
    std::vector<std::string> methods;
};

class RedirectedWrite : public InProcess, public testing::WithParamInterface<RedirectedWriteRow> {};

TEST_P(RedirectedWrite, IsSentElsewhereOnlyWhereTheServiceSaysSo)
{
    service_.inject({fault::Redirect{samples::overviewPath, GetParam().code}, samples::pagesPath});
    send("https://kestrune.example/user/api/v1/status-pages", {}, "POST");
    executor_.run();

    std::vector<std::string> methods;
    for (const auto& request : service_.received()) methods.push_back(request.method);
    EXPECT_EQ(methods, GetParam().methods);
}

INSTANTIATE_TEST_SUITE_P(EachCode, RedirectedWrite,
    testing::Values(RedirectedWriteRow{301, {"POST"}}, RedirectedWriteRow{302, {"POST"}},
        RedirectedWriteRow{303, {"POST", "GET"}}, RedirectedWriteRow{307, {"POST", "POST"}},
        RedirectedWriteRow{308, {"POST", "POST"}}));

TEST_F(InProcess, EndsAStoppedRequestAtOnceAndOnce)
{
    std::stop_source stop;
    service_.inject({fault::Delay{20s}});
    send("https://kestrune.example/user/api/v1/status-pages", stop.get_token());
    executor_.run();

    stop.request_stop();
    EXPECT_EQ(completions_, 0);
    executor_.run();
    EXPECT_EQ(failure(), Code::cancelled);

    pass(60s);
    EXPECT_EQ(completions_, 1);
}

TEST_F(InProcess, SendsNothingForARequestThatIsStoppedBefore)
{
    std::stop_source stop;
    stop.request_stop();
    send("https://kestrune.example/user/api/v1/status-pages", stop.get_token());
    executor_.run();

    EXPECT_EQ(failure(), Code::cancelled);
    EXPECT_TRUE(service_.received().empty());
}

TEST_F(InProcess, DropsWhatIsUnderWayWhenItGoes)
{
    auto watched = std::make_shared<int>(0);
    const std::weak_ptr<int> watch = watched;
    service_.inject({fault::Delay{1s}});
    platform::HttpRequest request{"GET", "https://kestrune.example/user/api/v1/status-pages", {}, std::nullopt};
    transport_->send(std::move(request), {}, [kept = std::move(watched), this](const Result&) { ++completions_; });
    executor_.run();
    ASSERT_FALSE(watch.expired());

    transport_.reset();
    EXPECT_TRUE(watch.expired());

    pass(60s);
    EXPECT_EQ(completions_, 0);
}

TEST_F(InProcess, FailsEachRequestWhileConnectionsFail)
{
    transport_->failConnections(Code::cannotConnectToHost);
    send();
    executor_.run();
    EXPECT_EQ(failure(), Code::cannotConnectToHost);
    EXPECT_TRUE(service_.received().empty());

    transport_->failConnections(std::nullopt);
    send();
    executor_.run();
    EXPECT_EQ(status(), 200);
}

}  // namespace
}  // namespace larkspan::simulator
