#include "inprocess/WorkerThread.h"

#include <utility>

namespace larkspan::simulator {

WorkerThread::WorkerThread()
    : thread_([this](const std::stop_token& stop) { run(stop); })
{
}

WorkerThread::~WorkerThread()
{
    stop();
}

void WorkerThread::stop()
{
    thread_.request_stop();
    if (thread_.joinable()) thread_.join();
    drop();
}

void WorkerThread::post(support::UniqueFunction<void()> work)
{
    after({}, std::move(work));
}

void WorkerThread::after(std::chrono::milliseconds wait, support::UniqueFunction<void()> work)
{
    {
        const std::scoped_lock lock(mutex_);
        queue_.emplace(Clock::now() + wait, std::move(work));
    }
    changed_.notify_one();
}

void WorkerThread::run(const std::stop_token& stop)
{
    std::unique_lock lock(mutex_);
    while (!stop.stop_requested()) {
        if (queue_.empty()) {
            changed_.wait(lock, stop, [this] { return !queue_.empty(); });
            continue;
        }
        const auto due = queue_.begin()->first;
        if (due > Clock::now()) {
            changed_.wait_until(
                lock, stop, due, [this, due] { return !queue_.empty() && queue_.begin()->first < due; });
            continue;
        }
        auto next = queue_.extract(queue_.begin());
        lock.unlock();
        next.mapped()();
        next = {};
        lock.lock();
    }
}

void WorkerThread::drop()
{
    // Destroyed work may post again: a task unwinds on its executor.
    std::unique_lock lock(mutex_);
    while (!queue_.empty()) {
        auto left = std::exchange(queue_, {});
        lock.unlock();
        left.clear();
        lock.lock();
    }
}

}  // namespace larkspan::simulator
