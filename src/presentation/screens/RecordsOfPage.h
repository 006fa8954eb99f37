#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/Task.h"

namespace larkspan::presentation {

/// Those of `fetching` that name the page. The service has lists of the whole account alone, whatever page is asked
/// about; a record that names no page is in none of them.
template <typename Record>
support::Task<std::vector<Record>> recordsOfPage(support::Task<std::vector<Record>> fetching, std::string pageId)
{
    std::vector<Record> records = co_await std::move(fetching);
    std::erase_if(records, [&pageId](const Record& each) { return each.statusPageId != pageId; });
    co_return records;
}

}  // namespace larkspan::presentation
