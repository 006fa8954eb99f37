#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace larkspan::presentation {

/// The service may give several records one id. A row is known by its record's id, and from the second of such records
/// on by the id and their number, so that each opens its own.
class RowIds {
public:
    /// The row of the next record, in the order of the records.
    std::string next(const std::string& id) { return numbered(id, counts_[id]++); }

    /// The row of the record of that id which so many of the same id stand before.
    static std::string numbered(const std::string& id, std::size_t before);

private:
    std::unordered_map<std::string, std::size_t> counts_;
};

/// What a row's id says; that of a record which is alone with its id is the same.
struct RowId {
    std::string_view recordId;
    std::size_t before = 0;

    static RowId of(std::string_view text);
};

/// The record that is shown in the row of that id, the first of a record's own id; null if there is none.
template <typename Records>
const typename Records::value_type* recordOfRow(const Records& records, std::string_view id)
{
    const auto isOf
        = [](std::string_view wanted) { return [wanted](const auto& record) { return record.id == wanted; }; };
    const auto whole = std::ranges::find_if(records, isOf(id));
    if (whole != records.end()) return &*whole;

    const auto row = RowId::of(id);
    auto left = row.before;
    for (const auto& record : records) {
        if (record.id == row.recordId && left-- == 0) return &record;
    }
    return nullptr;
}

}  // namespace larkspan::presentation
