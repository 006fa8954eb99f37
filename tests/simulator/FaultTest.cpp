#include "service/Fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Samples.h"
#include "service/Service.h"
#include "json/Json.h"

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;
using samples::overviewPath;
using samples::pagesPath;
using samples::request;

class Faults : public testing::Test {
protected:
    Reply answerWith(Fault fault)
    {
        service_.inject({std::move(fault)});
        return service_.answer(request(pagesPath));
    }

    Service service_{samples::account(5)};
};

TEST_F(Faults, OfAPathBefallThatPathOnly)
{
    service_.inject({fault::Status{503}, pagesPath});

    EXPECT_EQ(service_.answer(request(pagesPath + "?query")).status, 503);
    EXPECT_EQ(service_.answer(request(overviewPath)).status, 200);
}

TEST_F(Faults, OfAMethodBefallThatMethodOnly)
{
    service_.inject({fault::Status{503}, {}, "POST"});

    EXPECT_EQ(service_.answer(request(pagesPath, "POST")).status, 503);
    EXPECT_EQ(service_.answer(request(pagesPath)).status, 200);
}

TEST_F(Faults, ThatAreCountedEndAndOthersLastUntilTheyAreCleared)
{
    service_.inject({fault::Status{500}, pagesPath, {}, 2});
    service_.inject({fault::Delay{50ms}});

    EXPECT_EQ(service_.answer(request(pagesPath)).status, 500);
    EXPECT_EQ(service_.answer(request(pagesPath)).status, 500);
    const auto third = service_.answer(request(pagesPath));
    EXPECT_EQ(third.status, 200);
    EXPECT_EQ(third.delivery.delay, 50ms);

    service_.clearFaults();
    EXPECT_EQ(service_.answer(request(pagesPath)).delivery.delay, 0ms);
}

TEST_F(Faults, CountedZeroTimesNeverHappen)
{
    service_.inject({fault::Status{500}, {}, {}, 0});

    EXPECT_EQ(service_.answer(request(pagesPath)).status, 200);
}

TEST_F(Faults, OfOneRequestAddUp)
{
    service_.inject({fault::Status{429}});

    const auto reply = answerWith(fault::Delay{2s});

    EXPECT_EQ(reply.status, 429);
    EXPECT_EQ(reply.delivery.delay, 2s);
}

TEST_F(Faults, OfAStatusWithoutContentHaveNoBody)
{
    EXPECT_EQ(answerWith(fault::Status{204}).bodySize(), 0u);
}

TEST_F(Faults, OfAWrongShapeTurnListsAndObjectsRound)
{
    service_.setShape(ResultShape::bare);

    const auto pages = parsedJson(answerWith(fault::WrongShape{}).body);
    const auto overview = parsedJson(service_.answer(request(overviewPath)).body);

    EXPECT_TRUE(pages.is_object());
    EXPECT_TRUE(overview.is_array());
}

TEST_F(Faults, OfOneBadElementSpoilTheMiddleOneOnly)
{
    const auto reply = parsedJson(answerWith(fault::BadElement{}).body);
    const auto overviewReply = parsedJson(service_.answer(request(overviewPath)).body);

    const auto& pages = reply.at("data");
    ASSERT_EQ(pages.size(), 5u);
    for (std::size_t index = 0; index < pages.size(); ++index) EXPECT_EQ(!pages[index].contains("id"), index == 2);
    EXPECT_FALSE(overviewReply.at("data").at("status_pages").at(2).contains("id"));
}

TEST_F(Faults, OfOneBadElementLeaveAnEmptyListAlone)
{
    service_.withAccount([](Account& account) { account.statusPages.clear(); });

    EXPECT_EQ(answerWith(fault::BadElement{}).body, R"({"data":[]})");
}

TEST_F(Faults, OfTheBodyReplaceItUnderItsStatus)
{
    const auto empty = answerWith(fault::Body{});
    EXPECT_EQ(empty.status, 200);
    EXPECT_EQ(empty.body, "");

    const auto garbage = answerWith(fault::Garbage{});
    EXPECT_THROW(parsedJson(garbage.body), Json::exception);

    EXPECT_THAT(answerWith(fault::DeepNesting{3}).body, R"({"data":[[[]]]})");
}

TEST_F(Faults, OfAHugeBodyHoldNoMemoryForIt)
{
    const auto reply = answerWith(fault::HugeBody{});

    EXPECT_EQ(reply.bodySize(), 200'000'000u);
    EXPECT_LT(reply.body.size(), 100u);
}

TEST_F(Faults, ThatCutTheBodyDoSoInItsMiddleUnlessTold)
{
    const auto half = answerWith(fault::Reset{});
    EXPECT_EQ(half.delivery.ending, Delivery::Ending::reset);
    EXPECT_EQ(half.delivery.bodyBytes, half.bodySize() / 2);

    service_.clearFaults();
    const auto told = answerWith(fault::Truncation{7});
    EXPECT_EQ(told.delivery.ending, Delivery::Ending::truncated);
    EXPECT_EQ(told.delivery.bodyBytes, 7u);
}

TEST_F(Faults, OfARedirectNameThePlace)
{
    const auto reply = answerWith(fault::Redirect{"/elsewhere", 307});

    EXPECT_EQ(reply.status, 307);
    EXPECT_THAT(reply.headers, testing::Contains(testing::Pair("Location", "/elsewhere")));
}

}  // namespace
}  // namespace larkspan::simulator
