#pragma once

#include <curl/curl.h>

#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <vector>

#include "adapters/http/KeptSockets.h"
#include "platform/Executor.h"

namespace larkspan::adapters {

/// The client's own thread, which waits for posted work, libcurl's transfers and alarms in one place.
class ClientLoop final : public platform::Executor {
public:
    using Clock = std::chrono::steady_clock;
    using Work = support::UniqueFunction<void()>;
    using TransferEnd = support::UniqueFunction<void(CURLcode)>;

    /// Destroying it cancels the alarm.
    using Alarm = std::shared_ptr<const void>;

    ClientLoop();

    /// Runs the queued work and what that queues, then ends the thread. No transfer may be left.
    ~ClientLoop() override;
    ClientLoop(const ClientLoop&) = delete;
    ClientLoop& operator=(const ClientLoop&) = delete;

    void post(Work work) override;

    bool isOnItsThread() const { return std::this_thread::get_id() == thread_.get_id(); }

    // The functions below may be called on the loop's thread only.

    [[nodiscard]] Alarm at(Clock::time_point due, Work work);

    /// Drives `transfer` until it ends or is dropped; `ended` may destroy it and anything else.
    void begin(CURL* transfer, TransferEnd ended);
    void drop(CURL* transfer);

    /// The sockets of the transfers' connections, which outlive them.
    KeptSockets& sockets() { return sockets_; }

private:
    void run();
    void open();
    void close();
    bool runPosted();
    void runEndedTransfers();
    void runDueAlarms();
    int millisecondsToWait();

    std::mutex mutex_;
    std::vector<Work> posted_;
    bool isEnding_ = false;
    CURLM* multi_ = nullptr;

    std::unordered_map<CURL*, TransferEnd> transfers_;
    std::multimap<Clock::time_point, std::weak_ptr<Work>> alarms_;
    KeptSockets sockets_;
    std::thread thread_;
};

}  // namespace larkspan::adapters
