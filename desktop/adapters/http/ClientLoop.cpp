#include "adapters/http/ClientLoop.h"

#include <pthread.h>

#include <algorithm>
#include <csignal>
#include <utility>

#include "adapters/http/TlsPolicy.h"
#include "adapters/http/WipedCurlMemory.h"
#include "support/FatalError.h"

namespace larkspan::adapters {

namespace {

// Signals are handled on the main thread. libcurl's helper threads inherit the mask from the thread that starts them.
void blockSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

CURLcode startLibraries()
{
    ignoreTlsConfiguration();
    return initialiseCurlWithWipedMemory();
}

}  // namespace

ClientLoop::ClientLoop()
    : thread_([this] { run(); })
{
}

ClientLoop::~ClientLoop()
{
    post([this] {
        const std::scoped_lock lock(mutex_);
        isEnding_ = true;
    });
    thread_.join();
}

void ClientLoop::post(Work work)
{
    const std::scoped_lock lock(mutex_);
    const bool needsWaking = posted_.empty() && multi_;
    posted_.push_back(std::move(work));
    if (needsWaking) curl_multi_wakeup(multi_);
}

ClientLoop::Alarm ClientLoop::at(Clock::time_point due, Work work)
{
    auto held = std::make_shared<Work>(std::move(work));
    alarms_.emplace(due, held);
    return held;
}

void ClientLoop::begin(CURL* transfer, TransferEnd ended)
{
    transfers_.insert_or_assign(transfer, std::move(ended));
    curl_multi_add_handle(multi_, transfer);
}

void ClientLoop::drop(CURL* transfer)
{
    if (transfers_.erase(transfer) != 0) curl_multi_remove_handle(multi_, transfer);
}

void ClientLoop::run()
{
    blockSignals();
    open();
    while (runPosted()) {
        int running = 0;
        curl_multi_perform(multi_, &running);
        runEndedTransfers();
        runDueAlarms();
        curl_multi_poll(multi_, nullptr, 0, millisecondsToWait(), nullptr);
    }
    close();
}

void ClientLoop::open()
{
    // Here and not in the constructor: initialising OpenSSL takes milliseconds that would delay the first frame.
    static const CURLcode initialised = startLibraries();
    auto* multi = initialised == CURLE_OK ? curl_multi_init() : nullptr;
    if (!multi) support::fatalError("libcurl cannot be started");

    const std::scoped_lock lock(mutex_);
    multi_ = multi;
}

void ClientLoop::close()
{
    const std::scoped_lock lock(mutex_);
    curl_multi_cleanup(std::exchange(multi_, nullptr));
}

bool ClientLoop::runPosted()
{
    for (;;) {
        std::vector<Work> batch;
        {
            const std::scoped_lock lock(mutex_);
            if (posted_.empty()) return !isEnding_;
            batch = std::exchange(posted_, {});
        }
        for (auto& work : batch) std::exchange(work, {})();
    }
}

void ClientLoop::runEndedTransfers()
{
    int left = 0;
    while (const auto* message = curl_multi_info_read(multi_, &left)) {
        const auto result = message->data.result;
        const auto transfer = transfers_.extract(message->easy_handle);
        curl_multi_remove_handle(multi_, message->easy_handle);
        if (transfer) std::exchange(transfer.mapped(), {})(result);
    }
}

void ClientLoop::runDueAlarms()
{
    const auto now = Clock::now();
    while (!alarms_.empty() && alarms_.begin()->first <= now) {
        const auto alarm = alarms_.extract(alarms_.begin());
        if (const auto work = alarm.mapped().lock()) (*work)();
    }
}

int ClientLoop::millisecondsToWait()
{
    constexpr std::chrono::milliseconds longest = std::chrono::hours(1);
    while (!alarms_.empty() && alarms_.begin()->second.expired()) alarms_.erase(alarms_.begin());
    if (alarms_.empty()) return static_cast<int>(longest.count());

    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(alarms_.begin()->first - Clock::now());
    return static_cast<int>(std::clamp(wait, std::chrono::milliseconds(0), longest).count());
}

}  // namespace larkspan::adapters
