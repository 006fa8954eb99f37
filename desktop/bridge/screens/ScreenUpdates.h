#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/Executor.h"

namespace larkspan::bridge {

/// Notifies the screens of a window of changes: once for each turn of the event loop, after all its changes, and not
/// while the window is invisible. Main thread only.
class ScreenUpdates {
public:
    explicit ScreenUpdates(platform::Executor& main);

    /// Holds notifications back while the window is invisible; `release` sends each once.
    void hold();
    void release();

private:
    friend class ChangeNotice;

    struct Notice {
        std::function<void()> changed;
        bool isPending = false;
    };

    struct Board {
        platform::Executor& main;
        std::vector<std::weak_ptr<Notice>> waiting{};
        bool isHeld = false;
    };

    static void post(const std::shared_ptr<Board>& board, const std::shared_ptr<Notice>& notice);

    std::shared_ptr<Board> board_;
};

/// The notification of one listener: turns announcements before each change into one call after all changes.
class ChangeNotice {
public:
    ChangeNotice(const ScreenUpdates& updates, std::function<void()> changed);

    /// Call it before each change.
    void announce() const;

private:
    std::shared_ptr<ScreenUpdates::Board> board_;
    std::shared_ptr<ScreenUpdates::Notice> notice_;
};

}  // namespace larkspan::bridge
