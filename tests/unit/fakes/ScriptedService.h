#pragma once

#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "fakes/FakeCredentialStore.h"
#include "fakes/FakeTransport.h"
#include "fakes/ManualClock.h"
#include "fakes/ManualExecutor.h"
#include "support/LocalizedError.h"
#include "support/Outcome.h"
#include "support/Task.h"

namespace larkspan::api {

class KestruneAPI;

}  // namespace larkspan::api

namespace larkspan::fakes {

/// A client of a fake service, with a stored key, and both threads of the program under the test's control.
struct ScriptedService {
    static constexpr auto host = "service.example";
    static constexpr auto pagesURL = "https://service.example/user/api/v1/status-pages";
    static constexpr auto incidentsURL = "https://service.example/user/api/v1/incidents";
    static constexpr auto maintenancesURL = "https://service.example/user/api/v1/maintenances";
    static constexpr auto overviewURL = "https://service.example/user/api/status-pages/status";

    ScriptedService();
    ScriptedService(const ScriptedService&) = delete;
    ScriptedService& operator=(const ScriptedService&) = delete;
    ~ScriptedService();

    /// Runs both executors until neither has work left.
    void run()
    {
        while (main.run() + client.run() > 0) {}
    }

    /// "METHOD path" of each request.
    std::vector<std::string> sent() const;

    /// Runs `task` and returns its result or rethrows its exception; throws if it does not end.
    template <typename T>
    T result(support::Task<T> task)
    {
        support::Outcome<T> outcome
            = support::Outcome<T>::failure(std::make_exception_ptr(std::logic_error("still waiting")));
        support::start(main, store(std::move(task), &outcome));
        run();
        return outcome.take();
    }

    /// Runs `task` and returns the words of its failure.
    template <typename T>
    std::string failure(support::Task<T> task)
    {
        try {
            result(std::move(task));
        } catch (const support::LocalizedError& error) {
            return error.localizedDescription();
        }
        return "no failure";
    }

    ManualExecutor main;
    ManualExecutor client;
    FakeTransport transport{client};
    FakeCredentialStore credentials;
    ManualClock clock;

    /// Behind a pointer, so that tests that call none of its operations need not include them.
    const std::unique_ptr<api::KestruneAPI> ownAPI;
    api::KestruneAPI& api;

private:
    template <typename T>
    static support::Task<void> store(support::Task<T> task, support::Outcome<T>* outcome)
    {
        try {
            if constexpr (std::is_void_v<T>) {
                co_await std::move(task);
                *outcome = support::Outcome<T>::success();
            } else {
                T value = co_await std::move(task);
                *outcome = support::Outcome<T>::success(std::move(value));
            }
        } catch (...) {
            *outcome = support::Outcome<T>::failure(std::current_exception());
        }
    }
};

}  // namespace larkspan::fakes
