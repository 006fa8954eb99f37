#pragma once

#include <functional>
#include <memory>

#include "platform/Executor.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// Calls `react` when the changes of `observed` have landed, once for all of a turn; not after its own end.
class AfterChanges {
public:
    AfterChanges(platform::Executor& main, support::Observable& observed, std::function<void()> react);

private:
    struct Reaction {
        const std::function<void()> react;
        bool isPosted = false;
    };

    const std::shared_ptr<Reaction> reaction_;
    const support::Subscription changes_;
};

}  // namespace larkspan::presentation
