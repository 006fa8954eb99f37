#pragma once

#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/Executor.h"

using CURLM = void;

namespace larkspan::adapters {

/// The client's own thread: runs what is posted and drives the transfers of one libcurl multi handle, in one wait.
class ClientLoop final : public platform::Executor {
public:
    ClientLoop();

    /// Runs what is queued, and what that queues, and ends the thread. Transfers must be gone by now.
    ~ClientLoop() override;
    ClientLoop(const ClientLoop&) = delete;
    ClientLoop& operator=(const ClientLoop&) = delete;

    void post(support::UniqueFunction<void()> work) override;

private:
    using Work = support::UniqueFunction<void()>;

    void run();
    bool runPosted();

    CURLM* multi_;
    std::mutex mutex_;
    std::vector<Work> posted_;
    bool isEnding_ = false;
    std::thread thread_;
};

}  // namespace larkspan::adapters
