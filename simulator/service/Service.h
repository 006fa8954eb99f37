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

namespace larkspan::simulator {

/// How results are wrapped.
enum class ResultShape { underData, bare };

/// The service over one account: its rules, the faults that somebody asked for, and a record of what it was sent.
/// Every operation may be called from any thread.
class Service {
public:
    explicit Service(Account account);

    /// Answers a request and records it.
    Reply answer(const Request& request);

    /// Looks at the account or changes it.
    void withAccount(const std::function<void(Account&)>& use);

    /// Lets a story happen to the account, from now on by `clock`, which outlives the service.
    void live(Storyline story, const platform::Clock& clock);

    void setShape(ResultShape shape);

    void inject(FaultRule rule);
    void clearFaults();

    /// What was sent, oldest first; of a very long record the oldest part is gone.
    std::vector<Request> received() const;
    void forgetReceived();

private:
    Reply replyTo(const Request& request, const std::vector<Fault>& faults);
    Answer answerOfResource(const Request& request);
    void record(const Request& request);

    struct Life {
        Storyline story;
        const platform::Clock* clock;
        support::Time start;
    };

    mutable std::mutex mutex_;
    Account account_;
    std::optional<Life> life_;
    Router router_;
    ResultShape shape_ = ResultShape::underData;
    FaultPlan faults_;
    std::deque<Request> received_;
};

}  // namespace larkspan::simulator
