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

private:
    friend class AfterChanges;

    struct Reaction {
        const std::function<void()> react;
        bool isPending = false;
    };

    struct Board {
        platform::Executor& main;
        std::vector<std::weak_ptr<Reaction>> waiting{};
        bool isHeld = false;
    };

    static void announce(const std::shared_ptr<Board>& board, const std::shared_ptr<Reaction>& reaction);
    static void post(const std::shared_ptr<Board>& board, const std::shared_ptr<Reaction>& reaction);

    std::shared_ptr<Board> board_;
};

}  // namespace larkspan::support
