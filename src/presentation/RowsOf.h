#pragma once

#include <algorithm>
#include <iterator>
#include <type_traits>
#include <vector>

namespace larkspan::presentation {

/// The row of each record, in their order.
template <typename Records, typename RowOf>
auto rowsOf(const Records& records, RowOf rowOf)
{
    std::vector<std::invoke_result_t<RowOf&, const typename Records::value_type&>> rows;
    rows.reserve(records.size());
    std::ranges::transform(records, std::back_inserter(rows), rowOf);
    return rows;
}

}  // namespace larkspan::presentation
