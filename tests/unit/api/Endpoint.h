#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "api/KestruneAPI.h"
#include "fakes/ScriptedService.h"

namespace larkspan::api {

const std::string v1 = "https://service.example/user/api/v1";
const std::string feature = "https://service.example/user/api";

template <typename Record>
std::string describe(const Record& record)
{
    return record.id;
}

template <typename Record>
std::string describe(const std::vector<Record>& records)
{
    std::string all;
    for (const auto& record : records) all += (all.empty() ? "" : " ") + describe(record);
    return all;
}

/// The ids in the result, or "nothing".
template <typename T>
std::string resultOf(fakes::ScriptedService& service, support::Task<T> task)
{
    if constexpr (std::is_void_v<T>) {
        service.result(std::move(task));
        return "nothing";
    } else {
        return describe(service.result(std::move(task)));
    }
}

/// A call of an operation, the answer to it, the request that it sends and the `resultOf` it.
struct EndpointRow {
    std::string name;
    std::function<std::string(fakes::ScriptedService&)> call;
    std::string answer;
    std::string method;
    std::string url;
    std::string body;
    std::string result;
};

class Endpoint : public testing::TestWithParam<EndpointRow>, public fakes::ScriptedService {
protected:
    void expectRequestAndResult()
    {
        const auto& row = GetParam();
        transport.script(row.url, 200, row.answer);
        EXPECT_EQ(row.call(*this), row.result);
        ASSERT_EQ(transport.requests.size(), 1u);
        const auto& sent = transport.requests[0];
        EXPECT_EQ(sent.method, row.method);
        EXPECT_EQ(sent.url, row.url);
        EXPECT_EQ(sent.body.value_or("none"), row.body);
    }

    void expectOneWayThereAndOneBack()
    {
        const auto& row = GetParam();
        transport.script(row.url, 200, row.answer);
        row.call(*this);
        EXPECT_EQ(client.posts(), 2) << "the operation and the service's answer";
        EXPECT_EQ(main.posts(), 3) << "the result, and the start and the end of the task that waits for it";
    }
};

}  // namespace larkspan::api
