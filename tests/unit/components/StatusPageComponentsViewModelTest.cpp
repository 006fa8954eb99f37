#include "components/StatusPageComponentsViewModel.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "components/ComponentsOfAPage.h"

namespace larkspan::components {

namespace {

using platform::HttpResponse;
using Result = platform::HttpTransport::Result;

class LoadOfComponents : public testing::Test, public ComponentsOfAPage {
protected:
    LoadOfComponents()
    {
        serveComponents({componentRecord("2", inGroup("a")), componentRecord("1")});
        serveGroups({groupRecord("b"), groupRecord("a")});
    }

    void load()
    {
        model->loadComponents();
        run();
    }

    void expectNothing() const
    {
        EXPECT_TRUE(model->components->empty());
        EXPECT_TRUE(model->componentGroups->empty());
    }

    std::shared_ptr<StatusPageComponentsViewModel> model
        = std::make_shared<StatusPageComponentsViewModel>(main, api, "p");
};

TEST_F(LoadOfComponents, BringsComponentsAndGroupsInTheServicesOrder)
{
    load();
    EXPECT_EQ(model->components->at(0).id, "2");
    EXPECT_EQ(model->components->at(1).id, "1");
    EXPECT_EQ(model->componentGroups->at(0).id, "b");
    EXPECT_EQ(model->componentGroups->at(1).id, "a");
    EXPECT_FALSE(*model->isLoading);
    EXPECT_FALSE(*model->showErrorAlert);
    EXPECT_EQ(*model->errorMessage, std::nullopt);
}

TEST_F(LoadOfComponents, ReturnsAtOnceAndForgetsTheFailureBefore)
{
    model->showErrorAlert = true;
    model->errorMessage = "before";
    model->loadComponents();
    EXPECT_TRUE(*model->isLoading);
    EXPECT_FALSE(*model->showErrorAlert);
    EXPECT_EQ(*model->errorMessage, std::nullopt);
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(LoadOfComponents, AsksForBothAtTheSameTime)
{
    transport.forget(listURL);
    transport.forget(groupsURL);
    load();
    EXPECT_EQ(transport.pending.size(), 2u);
}

TEST_F(LoadOfComponents, ShowsTheComponentsWhileTheGroupsAreStillUnderWay)
{
    transport.forget(groupsURL);
    load();
    EXPECT_EQ(model->components->size(), 2u);
    EXPECT_TRUE(*model->isLoading);
    transport.answer(HttpResponse{200, list({groupRecord("a")})});
    run();
    EXPECT_EQ(model->componentGroups->size(), 1u);
    EXPECT_FALSE(*model->isLoading);
}

struct FailureRow {
    Result answer;
    std::string message;
};

std::vector<FailureRow> failures()
{
    return {{HttpResponse{400, ""}, "Bad request. The status page ID may be invalid."},
        {HttpResponse{401, ""},
            "Components are not available for this status page. Your plan may not include this feature."},
        {HttpResponse{403, ""}, "Access forbidden. Check your API key scopes."},
        {HttpResponse{404, ""}, "Server returned HTTP status code 404."},
        {HttpResponse{500, ""}, "Server returned HTTP status code 500."},
        {platform::URLError::Code::timedOut, "The request timed out."}};
}

class FailedComponents : public LoadOfComponents, public testing::WithParamInterface<FailureRow> {};

TEST_P(FailedComponents, AreToldInTheWordsOfTheirFailure)
{
    transport.script(listURL, GetParam().answer);
    load();
    EXPECT_EQ(*model->errorMessage, GetParam().message);
    EXPECT_TRUE(*model->showErrorAlert);
    EXPECT_FALSE(*model->isLoading);
}

TEST_P(FailedComponents, LeaveBothListsEmptyAlthoughTheGroupsCame)
{
    load();
    transport.script(listURL, GetParam().answer);
    load();
    expectNothing();
}

TEST_P(FailedComponents, SayTheSameIfTheGroupsFailToo)
{
    transport.script(listURL, GetParam().answer);
    transport.script(groupsURL, 500, "");
    load();
    EXPECT_EQ(*model->errorMessage, GetParam().message);
    expectNothing();
}

INSTANTIATE_TEST_SUITE_P(EachFailure, FailedComponents, testing::ValuesIn(failures()));

class FailedGroups : public LoadOfComponents, public testing::WithParamInterface<FailureRow> {};

TEST_P(FailedGroups, RaiseNoAlertAndLeaveTheComponentsWithoutGroups)
{
    load();
    transport.script(groupsURL, GetParam().answer);
    load();
    EXPECT_EQ(model->components->size(), 2u);
    EXPECT_TRUE(model->componentGroups->empty());
    EXPECT_FALSE(*model->showErrorAlert);
    EXPECT_EQ(*model->errorMessage, std::nullopt);
    EXPECT_FALSE(*model->isLoading);
}

INSTANTIATE_TEST_SUITE_P(EachFailure, FailedGroups, testing::ValuesIn(failures()));

TEST_F(LoadOfComponents, OfABodyThatIsNoListSaysSo)
{
    transport.script(listURL, 200, "7");
    load();
    EXPECT_EQ(*model->errorMessage, "The server’s answer: Expected a list but found a number");
    EXPECT_TRUE(*model->showErrorAlert);
}

TEST_F(LoadOfComponents, WithoutAKeySaysSo)
{
    credentials.items.clear();
    load();
    EXPECT_EQ(*model->errorMessage, "API key is missing.");
}

TEST_F(LoadOfComponents, ThatFailsTellsItOnlyWhenTheGroupsHaveEnded)
{
    transport.script(listURL, 500, "");
    transport.forget(groupsURL);
    load();
    EXPECT_TRUE(*model->isLoading);
    EXPECT_FALSE(*model->showErrorAlert);
    transport.answer(HttpResponse{200, "[]"});
    run();
    EXPECT_FALSE(*model->isLoading);
    EXPECT_TRUE(*model->showErrorAlert);
}

TEST_F(LoadOfComponents, BesideAnotherIsWonByTheLastToFinish)
{
    transport.forget(listURL);
    load();
    load();
    ASSERT_EQ(transport.pending.size(), 2u);
    transport.answer(HttpResponse{200, list({componentRecord("second")})}, 1);
    run();
    EXPECT_EQ(model->components->at(0).id, "second");
    transport.answer(HttpResponse{200, list({componentRecord("first")})});
    run();
    EXPECT_EQ(model->components->at(0).id, "first");
}

TEST_F(LoadOfComponents, ThatNobodyWaitsForAnyMoreIsFreedAtItsEnd)
{
    transport.forget(listURL);
    load();
    const std::weak_ptr<StatusPageComponentsViewModel> held = model;
    model.reset();
    EXPECT_FALSE(held.expired());
    transport.answer(HttpResponse{200, "[]"});
    run();
    EXPECT_TRUE(held.expired());
}

}  // namespace

}  // namespace larkspan::components
