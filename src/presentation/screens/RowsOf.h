#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include "presentation/shapes/RowId.h"

namespace larkspan::presentation {

/// The row of each record, in order, with a unique id, which is passed to `rowOf` as well if it takes one.
template <typename Records, typename RowOf>
auto rowsOf(const Records& records, RowOf rowOf)
{
    using Record = typename Records::value_type;
    const auto make = [&rowOf](const Record& record, const std::string& id) {
        if constexpr (std::is_invocable_v<RowOf&, const Record&, const std::string&>)
            return rowOf(record, id);
        else
            return rowOf(record);
    };
    std::vector<std::invoke_result_t<decltype(make), const Record&, const std::string&>> rows;
    rows.reserve(records.size());
    RowIds ids(records);
    for (const auto& record : records) {
        auto id = ids.next(record.id);
        auto& row = rows.emplace_back(make(record, id));
        row.id = std::move(id);
    }
    return rows;
}

}  // namespace larkspan::presentation
