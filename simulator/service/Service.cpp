#include "service/Service.h"

#include <utility>

#include "account/MaintenanceCalendar.h"
#include "service/Authentication.h"
#include "service/RequestBody.h"
#include "service/Resources.h"

namespace larkspan::simulator {

Service::Service(Account account, const platform::Clock& clock)
    : clock_(clock)
    , account_(std::move(account))
{
    for (const auto addRoutes : addRoutesOfEachResource) addRoutes(router_);
}

Reply Service::answer(const Request& request)
{
    const std::scoped_lock lock(mutex_);
    record(request);
    const auto now = clock_.now();
    if (life_) life_->story.tellUpTo(now - life_->start, now, account_);
    letMaintenancesPass(account_, now);
    const auto faults = faults_.take(request);
    auto reply = replyTo(request, faults, now);
    for (const auto& fault : faults) spoil(fault, reply);
    return reply;
}

void Service::withAccount(const std::function<void(Account&)>& use)
{
    const std::scoped_lock lock(mutex_);
    use(account_);
}

void Service::live(Storyline story)
{
    const std::scoped_lock lock(mutex_);
    life_.emplace(Life{std::move(story), clock_.now()});
}

void Service::setShape(ResultShape shape)
{
    const std::scoped_lock lock(mutex_);
    shape_ = shape;
}

void Service::inject(FaultRule rule)
{
    const std::scoped_lock lock(mutex_);
    faults_.add(std::move(rule));
}

void Service::clearFaults()
{
    const std::scoped_lock lock(mutex_);
    faults_.clear();
}

std::vector<Request> Service::received() const
{
    const std::scoped_lock lock(mutex_);
    return {received_.begin(), received_.end()};
}

void Service::forgetReceived()
{
    const std::scoped_lock lock(mutex_);
    received_.clear();
}

Reply Service::replyTo(const Request& request, const std::vector<Fault>& faults, support::Time now)
{
    auto answer = answerOfResource(request, now);
    Reply reply;
    reply.status = answer.status;
    reply.headers = std::move(answer.headers);
    if (!answer.result) return reply;

    auto& result = *answer.result;
    const bool isSuccess = answer.status >= 200 && answer.status < 300;
    if (isSuccess) {
        for (const auto& fault : faults) spoil(fault, result);
        if (shape_ == ResultShape::underData) result = Json::object({{"data", std::move(result)}});
    }
    reply.body = result.text();
    return reply;
}

Answer Service::answerOfResource(const Request& request, support::Time now)
{
    if (!request.path().starts_with("/user/api/")) return {404, Json::object({{"error", "Not found"}})};
    if (const auto status = refusal(request, account_)) {
        const auto* reason = *status == 401 ? "Unauthorized" : "Forbidden";
        return {*status, Json::object({{"error", reason}})};
    }
    try {
        return router_.route(request, account_, now);
    } catch (const Refusal& refusal) {
        return {refusal.status(), Json::object({{"error", refusal.what()}})};
    }
}

void Service::record(const Request& request)
{
    constexpr std::size_t most = 10'000;
    if (received_.size() == most) received_.pop_front();
    received_.push_back(request);
}

}  // namespace larkspan::simulator
