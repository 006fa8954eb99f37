#pragma once

#include <QBasicTimer>
#include <QObject>

#include <chrono>
#include <deque>
#include <mutex>
#include <optional>

#include "platform/Executor.h"

namespace larkspan::adapters {

/// The thread of Qt's event loop as an executor. Constructed and destroyed on that thread.
/// After some milliseconds of work, everything else that waits in the event loop, such as input, has its turn: Qt
/// itself handles all posted events at once, also those that are posted meanwhile. Work that is queued on destruction
/// is destroyed without being run, and so is the work which that posts.
class MainExecutor final : public QObject, public platform::Executor {
public:
    MainExecutor() = default;
    ~MainExecutor() override;

    /// Any thread. Work also runs in nested event loops, still in the order of posting.
    void post(support::UniqueFunction<void()> work) override;

    /// Destroys the queued work without running it, and the work which that queues in turn. Returns whether there was
    /// any. For the end of the program, when tasks unwind over several executors. Main thread only.
    bool drop();

protected:
    bool event(QEvent* event) noexcept override;

private:
    void runForAWhile();
    void startWhile();
    bool isWhileOver() const;
    std::optional<support::UniqueFunction<void()>> next();

    std::mutex mutex_;
    std::deque<support::UniqueFunction<void()>> queue_;
    /// Runs as long as work does without a pause, and fires after everything else in the loop.
    QBasicTimer pause_;
    std::chrono::steady_clock::time_point whileStart_;
};

}  // namespace larkspan::adapters
