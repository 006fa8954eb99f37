#include "core/AppStateManager.h"

#include <algorithm>
#include <utility>

#include "api/APIKey.h"
#include "api/KestruneAPI.h"
#include "support/Trimming.h"

namespace larkspan::core {

using support::Task;

std::shared_ptr<AppStateManager> AppStateManager::make(const Ports& ports)
{
    std::shared_ptr<AppStateManager> made(new AppStateManager(ports));
    ports.notifications.requestAuthorization();
    made->watchNetwork();
    return made;
}

AppStateManager::AppStateManager(const Ports& ports)
    : ports_(ports)
    , changeNotifications_(ports.notifications)
{
}

void AppStateManager::watchNetwork()
{
    ports_.networkMonitor.start([&main = ports_.main, weak = weak_from_this()](bool isSatisfied) {
        main.post([weak, isSatisfied] {
            if (const auto self = weak.lock()) self->isReachable = isSatisfied;
        });
    });
}

Task<void> AppStateManager::refresh()
{
    return runCycle(shared_from_this());
}

void AppStateManager::refreshNow()
{
    ports_.credentials.allowPromptAgain();
    startCycle();
}

void AppStateManager::startCycle()
{
    support::start(ports_.main, refresh());
}

void AppStateManager::startPollTimer()
{
    pollTimer_.reset();
    const auto period = std::chrono::duration_cast<std::chrono::milliseconds>(refreshInterval_);
    pollTimer_ = ports_.timers.every(period, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) self->startCycle();
    });
}

void AppStateManager::setRefreshInterval(Interval interval)
{
    refreshInterval_ = std::max(interval, shortestInterval);
    startPollTimer();
}

Task<void> AppStateManager::runCycle(std::shared_ptr<AppStateManager> self)
{
    if (self->isFetching_) co_return;
    self->isFetching_ = true;
    self->isLoading = self->statusPages->empty();
    self->refreshError = nullptr;

    AccountLists lists;
    std::exception_ptr failure;
    try {
        auto fetching = fetchAccount(self->ports_.api, self->ports_.main);
        lists = co_await std::move(fetching);
    } catch (...) {
        failure = std::current_exception();
    }
    if (failure) {
        self->endInFailure(failure);
    } else {
        self->publish(std::move(lists));
    }
}

Task<APIKeyVerificationResult> AppStateManager::verifyAPIKey(std::string key)
{
    return verify(shared_from_this(), std::move(key));
}

Task<APIKeyVerificationResult> AppStateManager::verify(std::shared_ptr<AppStateManager> self, std::string key)
{
    std::string trimmedKey(support::trimmed(key));
    if (trimmedKey.empty() || !api::canStandInHeader(trimmedKey)) co_return APIKeyVerificationResult::invalid;
    try {
        auto validating = self->ports_.api.validateAPIKey(std::move(trimmedKey));
        co_await std::move(validating);
    } catch (...) {
        co_return classifiedFailure(std::current_exception());
    }
    co_return APIKeyVerificationResult::valid;
}

void AppStateManager::publish(AccountLists lists)
{
    ++publishedLists_;
    statusPages = std::move(lists.statusPages);
    incidents = std::move(lists.incidents);
    maintenances = std::move(lists.maintenances);
    tellOfChanges();
    updateOverallStatus();
    lastRefresh = ports_.clock.now();
    hasCompletedInitialFetch = true;
    isLoading = false;
    isFetching_ = false;
}

void AppStateManager::tellOfChanges()
{
    if (*hasCompletedInitialFetch) {
        changeNotifications_.notifyNewIncidents(*incidents);
        changeNotifications_.notifyNewMaintenances(*maintenances);
    } else {
        // Records that exist when the program starts, or when a new key is first used, are not new to the user.
        changeNotifications_.seed(*incidents, *maintenances);
    }
}

void AppStateManager::endInFailure(std::exception_ptr failure)
{
    // The lists are kept: old data with an error is more useful than none.
    refreshError = std::move(failure);
    isLoading = false;
    isFetching_ = false;
    updateOverallStatus();
}

void AppStateManager::updateOverallStatus()
{
    overallStatus = rolledUpStatus(*statusPages, *incidents, *maintenances, *refreshError != nullptr);
}

void AppStateManager::clearAccountData()
{
    ++publishedLists_;
    statusPages = {};
    incidents = {};
    maintenances = {};
    overallStatus = OverallStatus::unknown;
    lastRefresh = std::nullopt;
    refreshError = nullptr;
    isLoading = false;
    changeNotifications_.clear();
    hasCompletedInitialFetch = false;
}

}  // namespace larkspan::core
