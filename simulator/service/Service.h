#pragma once

#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

#include "account/Account.h"
#include "account/Storyline.h"
#include "platform/Clock.h"
#include "service/Exchange.h"
#include "service/FaultPlan.h"
#include "service/Router.h"
#include "service/WallClock.h"

namespace larkspan::simulator {

/// How results are wrapped.
enum class ResultShape { underData, bare };

/// The service over one account: its rules, the faults that somebody asked for, and a record of what it was sent.
/// Every operation may be called from any thread.
class Service {
public:
    /// `clock` outlives the service.
    explicit Service(Account account, const platform::Clock& clock = wallClock());

    /// Answers a request and records it.
    Reply answer(const Request& request);

    /// Looks at the account or changes it.
    void withAccount(const std::function<void(Account&)>& use);

    /// Lets a story happen to the account, from now on.
    void live(Storyline story);

    support::Time now() const { return clock_.now(); }

    void setShape(ResultShape shape);

    void inject(FaultRule rule);
    void clearFaults();

    /// What was sent, oldest first; of a very long record the oldest part is gone.
    std::vector<Request> received() const;
    void forgetReceived();

private:
    Reply replyTo(const Request& request, const std::vector<Fault>& faults, support::Time now);
    Answer answerOfResource(const Request& request, support::Time now);
    void record(const Request& request);

    struct Life {
        Storyline story;
        support::Time start;
    };

    const platform::Clock& clock_;
    mutable std::mutex mutex_;
    Account account_;
    std::optional<Life> life_;
    Router router_;
    ResultShape shape_ = ResultShape::underData;
    FaultPlan faults_;
    std::deque<Request> received_;
};

}  // namespace larkspan::simulator
