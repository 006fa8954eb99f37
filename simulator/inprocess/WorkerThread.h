#pragma once

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

#include "inprocess/Delays.h"
#include "platform/Executor.h"

namespace larkspan::simulator {

/// A thread that runs work at once or after a delay. Work that is left on destruction is destroyed without being run.
class WorkerThread final : public platform::Executor, public Delays {
public:
    WorkerThread();
    ~WorkerThread() override;

    /// Ends the thread and destroys the remaining work without running it, also work that was posted after an earlier
    /// stop.
    void stop();

    void post(support::UniqueFunction<void()> work) override;
    void after(std::chrono::milliseconds wait, support::UniqueFunction<void()> work) override;

private:
    using Clock = std::chrono::steady_clock;
    using Queue = std::multimap<Clock::time_point, support::UniqueFunction<void()>>;

    void run(const std::stop_token& stop);
    void drop();

    std::mutex mutex_;
    std::condition_variable_any changed_;
    Queue queue_;
    std::jthread thread_;
};

}  // namespace larkspan::simulator
