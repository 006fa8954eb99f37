#pragma once

#include <gtest/gtest.h>

#include <string>

#include "Samples.h"
#include "fakes/ManualClock.h"
#include "service/Service.h"
#include "json/Json.h"

namespace larkspan::simulator {

/// A request that the service refuses, and its answer.
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

/// The service over an account of three pages, with a clock that the test moves.
class ServedAccount : public testing::Test {
protected:
    /// The body is written with apostrophes in place of quotation marks.
    Reply send(const std::string& method, const std::string& target, const char* body = "")
    {
        return service_.answer(samples::requestWithBody(target, method, body));
    }

    /// A text of the record or refusal in the reply.
    static std::string field(const Reply& reply, const char* key)
    {
        const auto json = parsedJson(reply.body);
        return json.contains(key) ? json.at(key).get<std::string>() : "(none)";
    }

    std::string pageStatus()
    {
        std::string status;
        service_.withAccount([&](Account& account) { status = account.findPage("page-1")->status.value(); });
        return status;
    }

    /// `listPath` is the path of the records that the refused request must not change.
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
