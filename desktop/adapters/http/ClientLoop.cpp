#include "adapters/http/ClientLoop.h"

#include <curl/curl.h>

#include <utility>

namespace larkspan::adapters {

namespace {

constexpr int untilWoken = 3'600'000;

}  // namespace

ClientLoop::ClientLoop()
    : multi_(curl_multi_init())
    , thread_([this] { run(); })
{
}

ClientLoop::~ClientLoop()
{
    {
        const std::scoped_lock lock(mutex_);
        isEnding_ = true;
    }
    curl_multi_wakeup(multi_);
    thread_.join();
    curl_multi_cleanup(multi_);
}

void ClientLoop::post(Work work)
{
    {
        const std::scoped_lock lock(mutex_);
        posted_.push_back(std::move(work));
    }
    curl_multi_wakeup(multi_);
}

void ClientLoop::run()
{
    while (runPosted()) curl_multi_poll(multi_, nullptr, 0, untilWoken, nullptr);
}

bool ClientLoop::runPosted()
{
    std::vector<Work> batch;
    for (;;) {
        {
            const std::scoped_lock lock(mutex_);
            if (posted_.empty()) return !isEnding_;
            batch = std::exchange(posted_, {});
        }
        for (auto& work : batch) std::exchange(work, {})();
    }
}

}  // namespace larkspan::adapters
