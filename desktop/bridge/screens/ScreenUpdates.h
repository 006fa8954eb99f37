#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/Executor.h"

namespace larkspan::bridge {

/// When the screens of a window hear of changes: once for each turn of the event loop, after all its changes, and not
/// while nobody sees the window. Main thread only.
class ScreenUpdates {
public:
    explicit ScreenUpdates(platform::Executor& main);

    /// Nobody sees the window for now: what comes is told once when somebody does again.
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

/// One listener's notice: turns announcements that come before each change into one call after all of them.
class ChangeNotice {
public:
    ChangeNotice(const ScreenUpdates& updates, std::function<void()> changed);

    /// Something is about to change.
    void announce() const;

private:
    std::shared_ptr<ScreenUpdates::Board> board_;
    std::shared_ptr<ScreenUpdates::Notice> notice_;
};

}  // namespace larkspan::bridge
