#include "presentation/screens/RunningAction.h"

#include <exception>
#include <utility>

#include "api/OrderOutcome.h"
#include "support/LocalizedError.h"

namespace larkspan::presentation {

using support::Task;

RunningAction::RunningAction(platform::Executor& main, std::function<void()> reloadList)
    : main_(main)
    , reloadList_(std::move(reloadList))
{
}

void RunningAction::run(Task<void> work)
{
    if (*isInProgress) return;
    isInProgress = true;
    alert.withdraw();
    support::start(main_, carryOut(shared_from_this(), std::move(work)));
}

Task<void> RunningAction::carryOut(std::shared_ptr<RunningAction> self, Task<void> work)
{
    std::exception_ptr failure;
    try {
        co_await std::move(work);
    } catch (...) {
        failure = std::current_exception();
    }
    if (failure) self->alert.raise(support::localizedDescription(failure));
    self->isInProgress = false;
    if (failure && self->reloadList_ && api::mayHaveTakenEffect(failure)) self->reloadList_();
}

}  // namespace larkspan::presentation
