#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/Executor.h"

namespace larkspan::support {

/// Notifies the screens of a window of changes: once for each turn of the event loop, after all its changes, and not
/// while the window is invisible. Main thread only.
class ScreenUpdates {
public:
    explicit ScreenUpdates(platform::Executor& main);

    /// Holds notifications back while the window is invisible; `release` sends each once.
    void hold();
    void release();

    /// Notifies of all changes so far, for what may come before the next turn: input that arrived together is handled
    /// in one.
    void deliver();

private:
    friend class AfterChanges;

    struct Reaction {
        const std::function<void()> react;
        bool isPending = false;
    };

    struct Board {
        platform::Executor& main;
        std::vector<std::weak_ptr<Reaction>> pending{};
        bool isHeld = false;
    };

    static void announce(const std::shared_ptr<Board>& board, const std::shared_ptr<Reaction>& reaction);
    static void post(const std::shared_ptr<Board>& board, const std::shared_ptr<Reaction>& reaction);
    static void notify(Reaction& reaction);

    std::shared_ptr<Board> board_;
};

}  // namespace larkspan::support
