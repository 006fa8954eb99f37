#include "api/KestruneAPI.h"

#include <gtest/gtest.h>

#include <stop_token>
#include <string>
#include <vector>

#include "api/APIError.h"
#include "api/KeychainHelper.h"
#include "api/RequestSending.h"
#include "fakes/ScriptedService.h"
#include "model/bodies/EmptyResponse.h"
#include "model/bodies/StatusPagesStatusEnvelope.h"
#include "model/json/DecodingError.h"
#include "model/records/StatusPage.h"

namespace larkspan::api {

namespace {

using fakes::ScriptedService;
using model::EmptyResponse;
using model::StatusPage;
using platform::HttpResponse;
using platform::URLError;
using Base = KestruneAPI::Base;
using Headers = std::vector<std::pair<std::string, std::string>>;
using Pages = std::vector<StatusPage>;

const std::string incidentURL = "https://service.example/user/api/v1/incidents/7";

class Send : public testing::Test, public ScriptedService {
protected:
    EmptyResponse deleteIncident()
    {
        return result(api.sendRequest<EmptyResponse>({.method = "DELETE", .path = "/incidents/7"}));
    }
};

TEST_F(Send, FetchStatusPagesAsksTheV1BaseAndSignsWithBothHeadersAlone)
{
    transport.script(pagesURL, 200, R"({"data": [{"id": "p1", "name": "Acme"}]})");
    const auto pages = result(api.fetchStatusPages());

    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(pages[0].name, "Acme");
    ASSERT_EQ(transport.requests.size(), 1u);
    const auto& request = transport.requests[0];
    EXPECT_EQ(request.method, "GET");
    EXPECT_EQ(request.url, pagesURL);
    EXPECT_EQ(request.headers, (Headers{{"Authorization", "Bearer k-123"}, {"X-API-Key", "k-123"}}));
    EXPECT_EQ(request.body, std::nullopt);
    EXPECT_EQ(request.timeout, std::chrono::seconds(60));
}

TEST_F(Send, FetchStatusPageStatusesAsksTheFeatureBaseAndGivesTheEntriesAsTheyCome)
{
    transport.script(overviewURL, 200,
        R"({"data": {"status_pages": [{"id": "p1", "name": "Acme", "status": {"code": "major-outage", "label": "Out"}}]}})");
    const auto entries = result(api.fetchStatusPageStatuses());

    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].status.code, "major-outage");
    EXPECT_EQ(entries[0].status.label, "Out");
    EXPECT_EQ(transport.requests.at(0).url, overviewURL);
    EXPECT_EQ(transport.requests.at(0).method, "GET");
}

TEST_F(Send, FetchStatusPagesAndAPathStatusPagesGiveTheSameURL)
{
    transport.script(pagesURL, 200, "[]");
    result(api.fetchStatusPages());
    result(api.sendRequest<Pages>({.path = "status-pages"}));
    EXPECT_EQ(transport.requests.at(0).url, transport.requests.at(1).url);
}

TEST_F(Send, APathWithAQueryKeepsItsQuery)
{
    const std::string url = "https://service.example/user/api/monitors?component_ids=a,b";
    transport.script(url, 200, "[]");
    result(api.sendRawRequest(Base::feature, "/monitors?component_ids=a,b"));
    EXPECT_EQ(transport.requests.at(0).url, url);
}

TEST_F(Send, AQueryThatGivesNoURLIsRefusedBeforeTheKeyIsReadAndNothingIsSent)
{
    const int readsBefore = credentials.reads;
    EXPECT_EQ(
        failure(api.sendRawRequest(Base::v1, "incidents?status_page_id=a b")), "Could not build a valid API URL.");
    EXPECT_TRUE(transport.requests.empty());
    EXPECT_EQ(credentials.reads, readsBefore);
}

TEST_F(Send, ARequestWithABodySaysThatItIsJSON)
{
    transport.script(incidentURL, 200, "{}");
    result(api.sendRequest<EmptyResponse>({.method = "PATCH", .path = "/incidents/7", .body = R"({"message":"m"})"}));
    const auto& request = transport.requests.at(0);
    EXPECT_EQ(request.method, "PATCH");
    EXPECT_EQ(request.body, R"({"message":"m"})");
    EXPECT_EQ(request.headers,
        (Headers{{"Authorization", "Bearer k-123"}, {"X-API-Key", "k-123"}, {"Content-Type", "application/json"}}));
}

TEST_F(Send, APostWithoutABodyHasNoContentType)
{
    transport.script("https://service.example/user/api/incidents/7/acknowledge", 204, "");
    result(
        api.sendRequest<EmptyResponse>({.base = Base::feature, .method = "POST", .path = "/incidents/7/acknowledge"}));
    EXPECT_EQ(transport.requests.at(0).headers.size(), 2u);
    EXPECT_EQ(transport.requests.at(0).body, std::nullopt);
}

TEST_F(Send, ADeleteAnswered204WithNoBodySucceeds)
{
    transport.script(incidentURL, 204, "");
    EXPECT_NO_THROW(deleteIncident());
    EXPECT_EQ(transport.requests.at(0).method, "DELETE");
}

TEST_F(Send, ADeleteAnswered200WithAnEmptyObjectSucceeds)
{
    transport.script(incidentURL, 200, "{}");
    EXPECT_NO_THROW(deleteIncident());
}

TEST_F(Send, ADeleteAnswered200WithTheTextOKFailsWithADecodingErrorAlthoughTheDeletionHappened)
{
    transport.script(incidentURL, 200, "OK");
    EXPECT_THROW(deleteIncident(), model::DecodingError);
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(Send, ADeleteAnsweredWithAListFailsWithADecodingError)
{
    transport.script(incidentURL, 200, "[]");
    EXPECT_THROW(deleteIncident(), model::DecodingError);
}

TEST_F(Send, AGetOfARecordAnswered200WithAnEmptyBodyFailsWithInvalidResponse)
{
    transport.script(overviewURL, 200, "");
    EXPECT_EQ(failure(api.fetchStatusPageStatuses()), "Received an invalid response from the server.");
}

TEST_F(Send, AnEmptyBodyForAListFailsWithInvalidResponseToo)
{
    transport.script(pagesURL, 200, "");
    EXPECT_EQ(failure(api.fetchStatusPages()), "Received an invalid response from the server.");
}

TEST_F(Send, ANullPayloadForAListIsAnEmptyList)
{
    transport.script(pagesURL, 200, R"({"data": null})");
    EXPECT_TRUE(result(api.fetchStatusPages()).empty());
}

TEST_F(Send, ABodyThatDoesNotDecodeFailsWithThePlainDecodingError)
{
    transport.script(pagesURL, 200, R"({"data": [{"id": 7, "name": "Acme"}]})");
    EXPECT_THROW(result(api.fetchStatusPages()), model::DecodingError);
}

TEST_F(Send, WithNoKeyStoredNoNetworkTrafficHappensAndTheTextSaysSo)
{
    KeychainHelper::deleteAPIKey(credentials);
    EXPECT_EQ(failure(api.fetchStatusPages()), "API key is missing.");
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(Send, AnEmptyStoredKeyIsReportedAsMissing)
{
    KeychainHelper::saveAPIKey(credentials, "");
    EXPECT_EQ(failure(api.fetchStatusPages()), "API key is missing.");
    EXPECT_TRUE(transport.requests.empty());
}

class UnsendableKey : public Send, public testing::WithParamInterface<std::string> {};

TEST_P(UnsendableKey, FoundInTheStoreIsRefusedAndNothingIsSent)
{
    KeychainHelper::saveAPIKey(credentials, GetParam());
    try {
        result(api.fetchStatusPages());
        FAIL() << "the key was sent";
    } catch (const URLError& error) {
        EXPECT_EQ(error.code(), URLError::Code::userAuthenticationRequired);
        EXPECT_EQ(error.localizedDescription().find(GetParam()), std::string::npos);
    }
    EXPECT_TRUE(transport.requests.empty());
}

INSTANTIATE_TEST_SUITE_P(Keys, UnsendableKey,
    testing::Values("k\r\nX-Evil: 1", "k\n", "a b", "\tk", "k\x7F", "cl\u00e9", std::string("k\0k", 3)));

TEST_F(Send, TheKeyIsReadForEveryRequestSoANewOneTakesEffectWithTheNext)
{
    transport.script(pagesURL, 200, "[]");
    result(api.fetchStatusPages());
    KeychainHelper::saveAPIKey(credentials, "k-new");
    result(api.fetchStatusPages());
    EXPECT_EQ(transport.requests.at(1).headers.at(1).second, "k-new");
}

class FailedStatus : public Send, public testing::WithParamInterface<int> {};

TEST_P(FailedStatus, IsAnErrorThatNamesTheCodeAndNeverReadsTheBody)
{
    transport.script(pagesURL, GetParam(), R"({"error": "secret words of the server"})");
    EXPECT_EQ(failure(api.fetchStatusPages()), "Server returned HTTP status code " + std::to_string(GetParam()) + ".");
}

INSTANTIATE_TEST_SUITE_P(
    Codes, FailedStatus, testing::Values(100, 199, 300, 301, 304, 401, 403, 404, 429, 500, 503, 599));

class GoodStatus : public Send, public testing::WithParamInterface<int> {};

TEST_P(GoodStatus, IsDecoded)
{
    transport.script(pagesURL, GetParam(), R"([{"id": "p1", "name": "Acme"}])");
    EXPECT_EQ(result(api.fetchStatusPages()).size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Codes, GoodStatus, testing::Values(200, 201, 206, 299));

TEST_F(Send, AnAnswerThatIsNotHttpGivesTheInvalidResponseText)
{
    transport.script(pagesURL, HttpResponse{.status = {}, .body = "[]"});
    EXPECT_EQ(failure(api.fetchStatusPages()), "Received an invalid response from the server.");
}

TEST_F(Send, ATransportFailureIsRethrownAsItIsAndNotRetried)
{
    transport.script(pagesURL, URLError::Code::cannotFindHost);
    try {
        result(api.fetchStatusPages());
        FAIL() << "no failure";
    } catch (const URLError& error) {
        EXPECT_EQ(error.code(), URLError::Code::cannotFindHost);
    }
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(Send, AFailureLeavesTheClientUsableAtOnce)
{
    transport.script(pagesURL, 500, "");
    EXPECT_NE(failure(api.fetchStatusPages()), "no failure");
    transport.script(pagesURL, 200, "[]");
    EXPECT_EQ(failure(api.fetchStatusPages()), "no failure");
}

TEST_F(Send, TheCallersStopReachesTheTransport)
{
    std::stop_source source;
    struct Await {
        static support::Task<void> pages(support::Task<Pages> task) { co_await std::move(task); }
    };
    support::start(main, Await::pages(api.fetchStatusPages(source.get_token())));
    run();
    ASSERT_EQ(transport.pending.size(), 1u);
    EXPECT_FALSE(transport.pending[0].stop.stop_requested());
    source.request_stop();
    EXPECT_TRUE(transport.pending[0].stop.stop_requested());
    transport.answer(HttpResponse{.status = 200, .body = "[]"});
    run();
}

TEST_F(Send, ARawRequestGivesTheBodyUndecodedAlsoWhenItIsEmpty)
{
    const std::string url = "https://service.example/user/api/components";
    transport.script(url, 200, "not JSON");
    EXPECT_EQ(result(api.sendRawRequest(Base::feature, "components")), "not JSON");
    transport.script(url, 200, "");
    EXPECT_EQ(result(api.sendRawRequest(Base::feature, "components")), "");
    EXPECT_EQ(transport.requests.at(0).method, "GET");
}

TEST_F(Send, ARawRequestWithoutAKeySendsNothing)
{
    KeychainHelper::deleteAPIKey(credentials);
    EXPECT_EQ(failure(api.sendRawRequest(Base::feature, "components")), "API key is missing.");
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(Send, ARawRequestFailsAsTheTransportDoes)
{
    transport.script("https://service.example/user/api/components", URLError::Code::timedOut);
    EXPECT_EQ(failure(api.sendRawRequest(Base::feature, "components")), "The request timed out.");
}

TEST_F(Send, ARawRequestFailsByItsStatusToo)
{
    transport.script("https://service.example/user/api/components", 403, "no");
    EXPECT_EQ(failure(api.sendRawRequest(Base::feature, "components")), "Server returned HTTP status code 403.");
}

TEST_F(Send, ARawRequestIsOneWayToTheClientAndOneBack)
{
    transport.script("https://service.example/user/api/components", 200, "");
    result(api.sendRawRequest(Base::feature, "components"));
    EXPECT_EQ(client.posts(), 2);
    EXPECT_EQ(main.posts(), 3);
}

class ValidateAPIKey : public Send {};

TEST_F(ValidateAPIKey, SendsTheGivenKeyAndNotTheStoredOne)
{
    const int readsBefore = credentials.reads;
    transport.script(pagesURL, 200, "this is not even JSON");
    EXPECT_NO_THROW(result(api.validateAPIKey("k-candidate")));
    const auto& request = transport.requests.at(0);
    EXPECT_EQ(request.method, "GET");
    EXPECT_EQ(request.url, pagesURL);
    EXPECT_EQ(request.headers, (Headers{{"Authorization", "Bearer k-candidate"}, {"X-API-Key", "k-candidate"}}));
    EXPECT_EQ(credentials.reads, readsBefore);
}

TEST_F(ValidateAPIKey, IsOneWayToTheClientAndOneBack)
{
    transport.script(pagesURL, 200, "");
    result(api.validateAPIKey("k-candidate"));
    EXPECT_EQ(client.posts(), 2);
    EXPECT_EQ(main.posts(), 3);
}

TEST_F(ValidateAPIKey, AcceptsAnEmptyBody)
{
    transport.script(pagesURL, 204, "");
    EXPECT_NO_THROW(result(api.validateAPIKey("k")));
}

TEST_F(ValidateAPIKey, FailsAsARequestDoes)
{
    transport.script(pagesURL, 401, "");
    EXPECT_EQ(failure(api.validateAPIKey("k")), "Server returned HTTP status code 401.");
    transport.script(pagesURL, URLError::Code::timedOut);
    EXPECT_EQ(failure(api.validateAPIKey("k")), "The request timed out.");
}

TEST_F(ValidateAPIKey, DoesNotRefuseAnEmptyKeyItself)
{
    transport.script(pagesURL, 401, "");
    EXPECT_EQ(failure(api.validateAPIKey("")), "Server returned HTTP status code 401.");
    EXPECT_EQ(transport.requests.size(), 1u);
}

TEST_F(ValidateAPIKey, NeverSendsAKeyThatCannotStandInAHeader)
{
    EXPECT_EQ(failure(api.validateAPIKey("k\r\nX-Evil: 1")), "The stored API key cannot be used. Save it again.");
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(Send, SeveralRequestsMayBeInFlightTogether)
{
    struct Await {
        static support::Task<void> pages(support::Task<Pages> task, int* ended)
        {
            co_await std::move(task);
            ++*ended;
        }
    };
    int ended = 0;
    support::start(main, Await::pages(api.fetchStatusPages(), &ended));
    support::start(main, Await::pages(api.fetchStatusPages(), &ended));
    run();
    EXPECT_EQ(transport.pending.size(), 2u);
    transport.answer(HttpResponse{.status = 200, .body = "[]"});
    transport.answer(HttpResponse{.status = 200, .body = "[]"});
    run();
    EXPECT_EQ(ended, 2);
}

}  // namespace

}  // namespace larkspan::api
