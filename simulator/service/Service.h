#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/Clock.h"
#include "service/Exchange.h"
#include "service/FaultPlan.h"
#include "service/WallClock.h"

namespace larkspan::simulator {

struct Account;
class Storyline;

/// How results are wrapped; `inOwnEnvelope` wraps a list that has none of its own under "data".
enum class ResultShape { underData, bare, inOwnEnvelope };

/// The shape of that name: "data", "bare" or "own".
std::optional<ResultShape> resultShape(std::string_view name);

/// The service over one account: its rules, the faults that somebody asked for, and a record of what it was sent.
/// Every operation may be called from any thread.
class Service {
public:
    /// `clock` outlives the service.
    explicit Service(Account account, const platform::Clock& clock = wallClock());
    ~Service();

    /// Answers a request and records it.
    Reply answer(const Request& request);

    /// Looks at the account or changes it.
    void withAccount(const std::function<void(Account&)>& use);

    /// Lets a story happen to the account, from now on.
    void live(Storyline story);

    support::Time now() const;

    void setShape(ResultShape shape);

    void inject(FaultRule rule);
    void clearFaults();

    /// What was sent, oldest first; of a very long record the oldest part is gone.
    std::vector<Request> received() const;
    void forgetReceived();

private:
    // Behind a pointer, so that whoever carries requests need not know what an account holds.
    struct State;
    const std::unique_ptr<State> state_;
};

}  // namespace larkspan::simulator
