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

/// The wrapping of results; `inOwnEnvelope` wraps lists without their own envelope under "data".
enum class ResultShape { underData, bare, inOwnEnvelope };

/// The shape with this name: "data", "bare" or "own".
std::optional<ResultShape> resultShape(std::string_view name);

/// The service for one account: its rules, the requested faults, and a record of the requests. Any thread.
class Service {
public:
    /// `clock` must outlive the service.
    explicit Service(Account account, const platform::Clock& clock = wallClock());
    ~Service();

    /// Answers a request and records it.
    Reply answer(const Request& request);

    /// Reads or changes the account.
    void withAccount(const std::function<void(Account&)>& use);

    /// Applies a story to the account from now on.
    void live(Storyline story);

    support::Time now() const;

    void setShape(ResultShape shape);

    void inject(FaultRule rule);
    void clearFaults();

    /// The requests received, oldest first; of very many, the oldest are dropped.
    std::vector<Request> received() const;
    void forgetReceived();

private:
    // Behind a pointer, so that code that carries requests need not include the account.
    struct State;
    const std::unique_ptr<State> state_;
};

}  // namespace larkspan::simulator
