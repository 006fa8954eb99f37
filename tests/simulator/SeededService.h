#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "Samples.h"
#include "account/Seed.h"
#include "fakes/ManualClock.h"
#include "model/json/JSONDecoder.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// The service over a seeded account of twelve pages with all their records, read as by the client.
class SeededService : public testing::Test {
protected:
    SeededService()
    {
        service_.withAccount([](Account& account) { account.keys.emplace(samples::key, KeyRights::full); });
    }

    std::string get(const std::string& target)
    {
        const auto reply = service_.answer(samples::request(target));
        EXPECT_EQ(reply.status, 200) << target;
        return reply.body;
    }

    template <typename Result>
    Result read(const std::string& target)
    {
        return decoder_.decodeResult<Result>(get(target));
    }

    template <typename Envelope>
    typename Envelope::List readList(const std::string& target)
    {
        return decoder_.decodeList<Envelope>(get(target));
    }

    Account copyOfAccount()
    {
        Account copy;
        service_.withAccount([&copy](Account& account) { copy = account; });
        return copy;
    }

    fakes::ManualClock clock_;
    Service service_{seededAccount(12, clock_.time), clock_};
    const model::JSONDecoder decoder_{clock_};
};

}  // namespace larkspan::simulator
