#include "support/AfterChanges.h"

#include <utility>

namespace larkspan::support {

AfterChanges::AfterChanges(const ScreenUpdates& updates, std::function<void()> react)
    : board_(updates.board_)
    , reaction_(std::make_shared<ScreenUpdates::Reaction>(ScreenUpdates::Reaction{std::move(react)}))
{
}

AfterChanges::AfterChanges(platform::Executor& main, Observable& observed, std::function<void()> react)
    : AfterChanges(ScreenUpdates(main), std::move(react))
{
    changes_ = observed.objectWillChange([this] { announce(); });
}

void AfterChanges::announce() const
{
    ScreenUpdates::announce(board_, reaction_);
}

}  // namespace larkspan::support
