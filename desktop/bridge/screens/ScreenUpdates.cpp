#include "bridge/screens/ScreenUpdates.h"

#include <utility>

namespace larkspan::bridge {

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
        if (const auto notice = weak.lock()) post(board_, notice);
    }
}

void ScreenUpdates::post(const std::shared_ptr<Board>& board, const std::shared_ptr<Notice>& notice)
{
    board->main.post([board, weak = std::weak_ptr(notice)] {
        const auto posted = weak.lock();
        if (!posted) return;
        if (board->isHeld) {
            board->waiting.push_back(posted);
            return;
        }
        posted->isPending = false;
        posted->changed();
    });
}

ChangeNotice::ChangeNotice(const ScreenUpdates& updates, std::function<void()> changed)
    : board_(updates.board_)
    , notice_(std::make_shared<ScreenUpdates::Notice>(ScreenUpdates::Notice{std::move(changed)}))
{
}

void ChangeNotice::announce() const
{
    if (std::exchange(notice_->isPending, true)) return;
    if (board_->isHeld) {
        board_->waiting.push_back(notice_);
    } else {
        ScreenUpdates::post(board_, notice_);
    }
}

}  // namespace larkspan::bridge
