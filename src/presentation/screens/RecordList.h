#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "presentation/shapes/RowId.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// The records of a list, with the changes that a screen makes between two loads.
template <typename Record>
class RecordList final : public support::Published<std::vector<Record>> {
public:
    using Records = std::vector<Record>;

    explicit RecordList(support::Observable& owner)
        : support::Published<Records>(owner)
    {
    }

    using support::Published<Records>::operator=;

    /// The record in the row with this id, which is the record's id if that is unique; null if there is none.
    const Record* find(const std::string& rowId) const { return recordOfRow(**this, rowId); }

    /// Inserts a new record at the front, where it stays until the next load.
    void insertFirst(Record created)
    {
        auto patched = **this;
        // A load during its creation may already have returned it.
        std::erase_if(patched, [&created](const Record& known) { return known.id == created.id; });
        patched.insert(patched.begin(), std::move(created));
        *this = std::move(patched);
    }

    /// Replaces the first record with the same id by `changed`; does nothing if there is none.
    void replace(Record changed)
    {
        auto patched = **this;
        const auto known = std::ranges::find(patched, changed.id, &Record::id);
        if (known == patched.end()) return;
        *known = std::move(changed);
        *this = std::move(patched);
    }

    /// Removes every record with this id.
    void remove(const std::string& id)
    {
        auto patched = **this;
        std::erase_if(patched, [&id](const Record& known) { return known.id == id; });
        *this = std::move(patched);
    }
};

}  // namespace larkspan::presentation
