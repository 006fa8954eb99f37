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
    for (const auto& weak : board_->pending) {
        if (const auto reaction = weak.lock()) post(board_, reaction);
    }
}

void ScreenUpdates::deliver()
{
    if (board_->isHeld) return;
    for (const auto& weak : std::exchange(board_->pending, {})) {
        if (const auto reaction = weak.lock()) notify(*reaction);
    }
}

void ScreenUpdates::announce(const std::shared_ptr<Board>& board, const std::shared_ptr<Reaction>& reaction)
{
    if (reaction->isPending) return;
    std::erase_if(board->pending, [](const auto& weak) {
        const auto pending = weak.lock();
        return !pending || !pending->isPending;
    });
    reaction->isPending = true;
    board->pending.push_back(reaction);
    if (!board->isHeld) post(board, reaction);
}

void ScreenUpdates::post(const std::shared_ptr<Board>& board, const std::shared_ptr<Reaction>& reaction)
{
    board->main.post([board, weak = std::weak_ptr(reaction)] {
        const auto posted = weak.lock();
        if (posted && !board->isHeld) notify(*posted);
    });
}

void ScreenUpdates::notify(Reaction& reaction)
{
    if (std::exchange(reaction.isPending, false)) reaction.react();
}

}  // namespace larkspan::support
