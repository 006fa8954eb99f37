#pragma once

#include <gtest/gtest.h>

#include <string>

#include "Samples.h"
#include "fakes/ManualClock.h"
#include "service/Service.h"
#include "json/Json.h"

namespace larkspan::simulator {

/// A request that the service refuses, and how.
struct RefusalRow {
    std::string name;
    std::string method;
    std::string target;
    const char* body;
    int status;
    std::string error;
};

inline std::string nameOf(const testing::TestParamInfo<RefusalRow>& row)
{
    return row.param.name;
}

/// The service over an account of three pages, by a clock that stands until it is moved.
class ServedAccount : public testing::Test {
protected:
    /// In the body an apostrophe stands for each quotation mark.
    Reply send(const std::string& method, const std::string& target, const char* body = "")
    {
        return service_.answer(samples::requestWithBody(target, method, body));
    }

    /// A text of the record or the refusal that the reply brings.
    static std::string field(const Reply& reply, const char* key)
    {
        const auto json = Json::parse(reply.body);
        const auto* value = json.find(key);
        return value && value->string() ? *value->string() : "(none)";
    }

    std::string pageStatus()
    {
        std::string status;
        service_.withAccount([&](Account& account) { status = account.findPage("page-1")->status.value(); });
        return status;
    }

    /// `listPath` is where the records are that the refused request must leave alone.
    void expectRefusal(const RefusalRow& row, const std::string& listPath)
    {
        const auto before = send("GET", listPath).body;

        const auto reply = send(row.method, row.target, row.body);

        EXPECT_EQ(reply.status, row.status);
        EXPECT_EQ(field(reply, "error"), row.error);
        EXPECT_EQ(send("GET", listPath).body, before);
    }

    fakes::ManualClock clock_;
    Service service_{samples::account(), clock_};
};

}  // namespace larkspan::simulator
