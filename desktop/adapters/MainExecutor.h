#pragma once

#include <QObject>

#include <deque>
#include <mutex>
#include <optional>

#include "platform/Executor.h"

namespace larkspan::adapters {

/// The thread of Qt's event loop as an executor. Make and destroy it on that thread.
/// What is queued when it goes is destroyed without having run, and so is what that destruction posts.
class MainExecutor final : public QObject, public platform::Executor {
public:
    MainExecutor() = default;
    ~MainExecutor() override;

    /// From any thread. Works in nested event loops too, still in the order posted.
    void post(support::UniqueFunction<void()> work) override;

    /// Destroys what is queued without running it, and what that queues in turn; says whether there was anything.
    /// For the end of the program, when tasks unwind over several executors. Main thread only.
    bool drop();

protected:
    bool event(QEvent* event) noexcept override;

private:
    std::optional<support::UniqueFunction<void()>> next();

    std::mutex mutex_;
    std::deque<support::UniqueFunction<void()>> queue_;
};

}  // namespace larkspan::adapters
