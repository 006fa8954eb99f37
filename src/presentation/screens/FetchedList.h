#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Executor.h"
#include "presentation/screens/FetchedRecords.h"
#include "presentation/screens/RecordList.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// A list that one request fetches. A failed load does not change its records; a running load may outlive the screen
/// that started it.
template <typename Record>
class FetchedList : public FetchedRecords, public std::enable_shared_from_this<FetchedList<Record>> {
public:
    using Records = std::vector<Record>;
    using Fetch = std::function<support::Task<Records>()>;

    FetchedList(platform::Executor& main, Fetch fetch)
        : main_(main)
        , fetch_(std::move(fetch))
    {
    }

    /// In the order in which `fetch` returns them.
    RecordList<Record> records{*this};
    support::Published<bool> isLoading{*this, false};
    /// The failure of the last load; null if it succeeded.
    support::Published<std::exception_ptr> error{*this};

    void load() override { support::start(main_, loading()); }
    /// Starts to load at once; the task ends with the load and never throws.
    support::Task<void> loading()
    {
        isLoading = true;
        error = nullptr;
        return fetchRecords(this->shared_from_this());
    }

    Content content() const override { return contentOf(!records->empty(), *isLoading, *error != nullptr); }
    std::string failureText() const override { return presentation::failureText(*error); }

private:
    static support::Task<void> fetchRecords(std::shared_ptr<FetchedList> self)
    {
        try {
            auto fetching = self->fetch_();
            Records fetched = co_await std::move(fetching);
            self->records = std::move(fetched);
            self->error = nullptr;
        } catch (...) {
            self->error = std::current_exception();
        }
        self->isLoading = false;
    }

    platform::Executor& main_;
    const Fetch fetch_;
};

}  // namespace larkspan::presentation
