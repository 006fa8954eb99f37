#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/Task.h"

namespace larkspan::presentation {

/// The records of `fetching` that name the page. The service always lists the whole account, whatever page is
/// requested; a record that names no page belongs to none.
template <typename Record>
support::Task<std::vector<Record>> recordsOfPage(support::Task<std::vector<Record>> fetching, std::string pageId)
{
    std::vector<Record> records = co_await std::move(fetching);
    std::erase_if(records, [&pageId](const Record& each) { return each.statusPageId != pageId; });
    co_return records;
}

}  // namespace larkspan::presentation
