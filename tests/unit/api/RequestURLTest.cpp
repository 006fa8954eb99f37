#include "api/RequestURL.h"

#include <gtest/gtest.h>

#include <string>

#include "api/APIError.h"

namespace larkspan::api {

namespace {

struct URLRow {
    std::string path;
    std::string url;
};

class RequestURL : public testing::TestWithParam<URLRow> {};

TEST_P(RequestURL, JoinsBaseAndPath)
{
    EXPECT_EQ(requestURL("https://host/user/api", GetParam().path), GetParam().url);
}

INSTANTIATE_TEST_SUITE_P(WithoutAQuery, RequestURL,
    testing::Values(URLRow{"status-pages", "https://host/user/api/status-pages"},
        URLRow{"/status-pages", "https://host/user/api/status-pages"},
        URLRow{"//status-pages", "https://host/user/api//status-pages"},
        URLRow{"incidents/a b", "https://host/user/api/incidents/a%20b"},
        URLRow{"incidents/50%", "https://host/user/api/incidents/50%25"},
        URLRow{"incidents/#1", "https://host/user/api/incidents/%231"},
        URLRow{"incidents/\xC3\xA9", "https://host/user/api/incidents/%C3%A9"},
        URLRow{"a:b@c;d=e,f", "https://host/user/api/a:b@c;d=e,f"}));

INSTANTIATE_TEST_SUITE_P(WithAQuery, RequestURL,
    testing::Values(URLRow{"monitors?component_ids=a,b", "https://host/user/api/monitors?component_ids=a,b"},
        URLRow{"/incidents?status_page_id=a%20b", "https://host/user/api/incidents?status_page_id=a%20b"},
        URLRow{"a?b?c", "https://host/user/api/a?b?c"}));

class NoRequestURL : public testing::TestWithParam<std::string> {};

TEST_P(NoRequestURL, IsRefusedAsInvalid)
{
    try {
        requestURL("https://host/user/api", GetParam());
        FAIL() << "a URL came of it";
    } catch (const APIError& error) {
        EXPECT_EQ(error.kind(), APIError::Case::invalidURL);
    }
}

INSTANTIATE_TEST_SUITE_P(QueriesThatAreNoText, NoRequestURL,
    testing::Values("a?b c", "a?%", "a?%2", "a?%zz", "a?\r\nHost: other", "a?\"<>", "a?\xFF"));

}  // namespace

}  // namespace larkspan::api
