#include "support/ScreenUpdates.h"

#include <utility>

namespace larkspan::support {

ScreenUpdates::ScreenUpdates(platform::Executor& main)
    : board_(std::make_shared<Board>(Board{main}))
{
}

void ScreenUpdates::hold()
{
    board_->isHeld = true;
}

void ScreenUpdates::release()
{
    if (!std::exchange(board_->isHeld, false)) return;
    for (const auto& weak : std::exchange(board_->waiting, {})) {
        if (const auto reaction = weak.lock()) post(board_, reaction);
    }
}

void ScreenUpdates::announce(const std::shared_ptr<Board>& board, const std::shared_ptr<Reaction>& reaction)
{
    if (std::exchange(reaction->isPending, true)) return;
    if (board->isHeld) {
        board->waiting.push_back(reaction);
    } else {
        post(board, reaction);
    }
}

void ScreenUpdates::post(const std::shared_ptr<Board>& board, const std::shared_ptr<Reaction>& reaction)
{
    board->main.post([board, weak = std::weak_ptr(reaction)] {
        const auto posted = weak.lock();
        if (!posted) return;
        if (board->isHeld) {
            board->waiting.push_back(posted);
            return;
        }
        posted->isPending = false;
        posted->react();
    });
}

}  // namespace larkspan::support
