#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "api/KestruneAPI.h"
#include "demo/MemoryCredentialStore.h"
#include "fakes/FakeDesktop.h"
#include "fakes/ManualClock.h"
#include "fakes/ManualExecutor.h"
#include "inprocess/InProcessTransport.h"
#include "service/Service.h"

namespace larkspan::campaign {

/// The client with an account whose incidents and maintenances come and go, all on this thread.
class LivingAccount {
public:
    LivingAccount();

    /// One cycle, a minute after the one before; throws if it fails.
    void refresh();

    /// How often an incident or a maintenance was announced.
    std::size_t noticeCount() const { return noticeCount_; }
    const std::vector<platform::MenuRow>& menu() const { return desktop_.statusItem.rows; }

private:
    class NoDelays final : public simulator::Delays {
    public:
        explicit NoDelays(platform::Executor& executor)
            : executor_(executor)
        {
        }
        void after(std::chrono::milliseconds, support::UniqueFunction<void()> work) override
        {
            executor_.post(std::move(work));
        }

    private:
        platform::Executor& executor_;
    };

    void forgetWhatIsOver();

    fakes::ManualClock clock_;
    fakes::ManualExecutor executor_;
    fakes::FakeDesktop desktop_;
    simulator::MemoryCredentialStore store_;
    simulator::Service service_;
    NoDelays delays_{executor_};
    simulator::InProcessTransport transport_{service_, executor_, delays_};
    api::KestruneAPI api_{{executor_, transport_, store_, clock_}, "kestrune.example"};
    std::shared_ptr<core::AppStateManager> state_
        = core::AppStateManager::make(desktop_.ports(executor_, clock_, store_, api_));
    std::size_t noticeCount_ = 0;
};

}  // namespace larkspan::campaign
