#pragma once

#include <algorithm>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Executor.h"
#include "presentation/Content.h"
#include "support/Observable.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// The records that a screen fetches on its own. A failed load leaves them as they were. Loads may run beside each
/// other; the last to finish wins. Main thread only; a running load outlives the screen that began it.
template <typename Record>
class FetchedList : public support::Observable, public std::enable_shared_from_this<FetchedList<Record>> {
public:
    using Records = std::vector<Record>;
    using Fetch = std::function<support::Task<Records>()>;

    FetchedList(platform::Executor& main, Fetch fetch)
        : main_(main)
        , fetch_(std::move(fetch))
    {
    }

    /// In the order in which `fetch` gave them.
    support::Published<Records> records{*this};
    support::Published<bool> isLoading{*this, false};
    /// The failure of the last load; null if there was none.
    support::Published<std::exception_ptr> error{*this};

    Content content() const { return contentOf(!records->empty(), *isLoading, *error != nullptr); }

    /// Begins to fetch and returns at once.
    void load()
    {
        isLoading = true;
        error = nullptr;
        support::start(main_, fetchRecords(this->shared_from_this()));
    }

    /// Puts a record that was just made at the head, where it stands until the next load.
    void insertFirst(Record created)
    {
        auto patched = *records;
        // A load that ran beside its creation may have brought it already.
        std::erase_if(patched, [&created](const Record& known) { return known.id == created.id; });
        patched.insert(patched.begin(), std::move(created));
        records = std::move(patched);
    }

    /// Puts `changed` in the place of the first record of its id; nothing if there is none.
    void replace(Record changed)
    {
        auto patched = *records;
        const auto known = std::ranges::find(patched, changed.id, &Record::id);
        if (known == patched.end()) return;
        *known = std::move(changed);
        records = std::move(patched);
    }

    void remove(const std::string& id)
    {
        auto patched = *records;
        std::erase_if(patched, [&id](const Record& known) { return known.id == id; });
        records = std::move(patched);
    }

protected:
    ~FetchedList() = default;

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
