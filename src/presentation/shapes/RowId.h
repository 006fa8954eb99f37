#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace larkspan::presentation {

/// The service may give several records one id. A row is known by its record's id, and from the second of such records
/// on by the id and their number, so that each opens its own.
class RowIds {
public:
    template <typename Records>
    explicit RowIds(const Records& records)
    {
        std::vector<std::size_t> hashes;
        hashes.reserve(records.size());
        for (const auto& record : records) hashes.push_back(hash(record.id));
        // As a rule there are none, and a table of all ids would take longer than all else that is done for a list.
        const auto repeated = repeatedOf(std::move(hashes));
        if (repeated.empty()) return;
        for (const auto& record : records) {
            if (std::ranges::binary_search(repeated, hash(record.id))) counts_.try_emplace(record.id);
        }
    }

    /// The row of the next record, in the order of the records.
    std::string next(const std::string& id)
    {
        const auto repeated = counts_.find(id);
        return repeated == counts_.end() ? id : numbered(id, repeated->second++);
    }

    /// The row of the record of that id which so many of the same id stand before.
    static std::string numbered(const std::string& id, std::size_t before);

private:
    static std::size_t hash(std::string_view id) { return std::hash<std::string_view>()(id); }
    /// In ascending order.
    static std::vector<std::size_t> repeatedOf(std::vector<std::size_t> hashes);

    /// How many came of each id that may be that of several.
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
