#pragma once

#include <functional>
#include <memory>

#include "platform/Executor.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// Calls `react` after the changes of `observed`, once for all changes of a turn; never after its own destruction.
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
