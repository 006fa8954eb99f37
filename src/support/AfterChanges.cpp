#include "support/AfterChanges.h"

#include <utility>

#include "support/WhileAlive.h"

namespace larkspan::presentation {

AfterChanges::AfterChanges(platform::Executor& main, support::Observable& observed, std::function<void()> react)
    : reaction_(std::make_shared<Reaction>(Reaction{.react = std::move(react)}))
    , changes_(observed.objectWillChange([&main, reaction = reaction_.get(), weak = std::weak_ptr(reaction_)] {
        if (std::exchange(reaction->isPosted, true)) return;
        main.post(support::whileAlive(weak, [](Reaction& posted) {
            posted.isPosted = false;
            posted.react();
        }));
    }))
{
}

}  // namespace larkspan::presentation
