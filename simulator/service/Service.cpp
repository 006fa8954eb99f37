#include "service/Service.h"

#include <deque>
#include <mutex>
#include <optional>
#include <utility>

#include "account/Account.h"
#include "account/MaintenanceCalendar.h"
#include "account/Storyline.h"
#include "service/Authentication.h"
#include "service/RequestBody.h"
#include "service/Resources.h"
#include "service/Router.h"

namespace larkspan::simulator {

namespace {

struct Life {
    Storyline story;
    support::Time start;
};

Json shaped(Answer answer, ResultShape shape)
{
    if (answer.isWhole || shape == ResultShape::bare) return std::move(*answer.result);
    const bool isInOwn = shape == ResultShape::inOwnEnvelope && !answer.envelope.empty();
    return Json::object({{isInOwn ? std::string(answer.envelope) : "data", std::move(*answer.result)}});
}

}  // namespace

struct Service::State {
    State(Account served, const platform::Clock& keptClock)
        : clock(keptClock)
        , account(std::move(served))
    {
        for (const auto addRoutes : addRoutesOfEachResource) addRoutes(router);
    }

    Reply replyTo(const Request& request, const std::vector<Fault>& faultsOfRequest, support::Time now);
    Answer answerOfResource(const Request& request, support::Time now);
    void record(const Request& request);

    const platform::Clock& clock;
    std::mutex mutex;
    Account account;
    std::optional<Life> life;
    Router router;
    ResultShape shape = ResultShape::underData;
    FaultPlan faults;
    std::deque<Request> received;
};

std::optional<ResultShape> resultShape(std::string_view name)
{
    if (name == "data") return ResultShape::underData;
    if (name == "bare") return ResultShape::bare;
    if (name == "own") return ResultShape::inOwnEnvelope;
    return std::nullopt;
}

Service::Service(Account account, const platform::Clock& clock)
    : state_(std::make_unique<State>(std::move(account), clock))
{
}

Service::~Service() = default;

support::Time Service::now() const
{
    return state_->clock.now();
}

Reply Service::answer(const Request& request)
{
    const std::scoped_lock lock(state_->mutex);
    state_->record(request);
    const auto now = state_->clock.now();
    if (auto& life = state_->life) life->story.applyEventsUpTo(now - life->start, now, state_->account);
    updateMaintenancePhases(state_->account, now);
    const auto faults = state_->faults.take(request);
    auto reply = state_->replyTo(request, faults, now);
    for (const auto& fault : faults) spoil(fault, reply);
    return reply;
}

void Service::withAccount(const std::function<void(Account&)>& use)
{
    const std::scoped_lock lock(state_->mutex);
    use(state_->account);
}

void Service::live(Storyline story)
{
    const std::scoped_lock lock(state_->mutex);
    state_->life.emplace(Life{std::move(story), state_->clock.now()});
}

void Service::setShape(ResultShape shape)
{
    const std::scoped_lock lock(state_->mutex);
    state_->shape = shape;
}

void Service::inject(FaultRule rule)
{
    const std::scoped_lock lock(state_->mutex);
    state_->faults.add(std::move(rule));
}

void Service::clearFaults()
{
    const std::scoped_lock lock(state_->mutex);
    state_->faults.clear();
}

std::vector<Request> Service::received() const
{
    const std::scoped_lock lock(state_->mutex);
    return {state_->received.begin(), state_->received.end()};
}

void Service::forgetReceived()
{
    const std::scoped_lock lock(state_->mutex);
    state_->received.clear();
}

Reply Service::State::replyTo(const Request& request, const std::vector<Fault>& faultsOfRequest, support::Time now)
{
    auto answer = answerOfResource(request, now);
    Reply reply;
    reply.status = answer.status;
    reply.headers = std::move(answer.headers);
    if (!answer.result) return reply;

    const bool isSuccess = answer.status >= 200 && answer.status < 300;
    if (isSuccess) {
        for (const auto& fault : faultsOfRequest) spoil(fault, *answer.result);
        reply.body = textOf(shaped(std::move(answer), shape));
    } else {
        reply.body = textOf(*answer.result);
    }
    return reply;
}

Answer Service::State::answerOfResource(const Request& request, support::Time now)
{
    if (!request.path().starts_with("/user/api/")) return {404, Json::object({{"error", "Not found"}})};
    if (const auto status = refusal(request, account)) {
        const auto* reason = *status == 401 ? "Unauthorized" : "Forbidden";
        return {*status, Json::object({{"error", reason}})};
    }
    try {
        return router.route(request, account, now);
    } catch (const Refusal& refusal) {
        return {refusal.status(), Json::object({{"error", refusal.what()}})};
    }
}

void Service::State::record(const Request& request)
{
    constexpr std::size_t most = 10'000;
    if (received.size() == most) received.pop_front();
    received.push_back(request);
}

}  // namespace larkspan::simulator
