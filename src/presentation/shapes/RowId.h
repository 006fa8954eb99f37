#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace larkspan::presentation {

/// The service may give several records the same id. A row's id is its record's id, and from the second such record on
/// the id with a number, so that each row opens its own record.
class RowIds {
public:
    template <typename Records>
    explicit RowIds(const Records& records)
    {
        std::vector<std::size_t> hashes;
        hashes.reserve(records.size());
        for (const auto& record : records) hashes.push_back(hash(record.id));
        // Usually there are none, and a table of all ids would take longer than everything else for a list.
        const auto repeated = repeatedOf(std::move(hashes));
        if (repeated.empty()) return;
        for (const auto& record : records) {
            if (std::ranges::binary_search(repeated, hash(record.id))) counts_.try_emplace(record.id);
        }
    }

    /// The row id of the next record, called in the order of the records.
    std::string next(const std::string& id)
    {
        const auto repeated = counts_.find(id);
        return repeated == counts_.end() ? id : numbered(id, repeated->second++);
    }

    /// The row id of a record with this id that is preceded by `before` records with the same id.
    static std::string numbered(const std::string& id, std::size_t before);

private:
    static std::size_t hash(std::string_view id) { return std::hash<std::string_view>()(id); }
    /// In ascending order.
    static std::vector<std::size_t> repeatedOf(std::vector<std::size_t> hashes);

    /// The number of records so far for each id that may be repeated.
    std::unordered_map<std::string, std::size_t> counts_;
};

/// The parts of a row's id; for a record with a unique id, the row's id is the record's.
struct RowId {
    std::string_view recordId;
    std::size_t before = 0;

    static RowId of(std::string_view text);
};

/// The record in the row with this id; the first one with a given record id; null if there is none.
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
