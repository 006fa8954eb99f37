#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "presentation/shapes/RowId.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// The records of a list, with what a screen takes over in them between two loads.
template <typename Record>
class RecordList final : public support::Published<std::vector<Record>> {
public:
    using Records = std::vector<Record>;

    explicit RecordList(support::Observable& owner)
        : support::Published<Records>(owner)
    {
    }

    using support::Published<Records>::operator=;

    /// The one that is shown in the row of that id, which is its own if it is alone with it; null if there is none.
    const Record* find(const std::string& rowId) const { return recordOfRow(**this, rowId); }

    /// Puts a record that was just made at the head, where it stands until the next load.
    void insertFirst(Record created)
    {
        auto patched = **this;
        // A load that ran beside its creation may have brought it already.
        std::erase_if(patched, [&created](const Record& known) { return known.id == created.id; });
        patched.insert(patched.begin(), std::move(created));
        *this = std::move(patched);
    }

    /// Puts `changed` in the place of the first record of its id; nothing if there is none.
    void replace(Record changed)
    {
        auto patched = **this;
        const auto known = std::ranges::find(patched, changed.id, &Record::id);
        if (known == patched.end()) return;
        *known = std::move(changed);
        *this = std::move(patched);
    }

    /// Takes away every record of that id.
    void remove(const std::string& id)
    {
        auto patched = **this;
        std::erase_if(patched, [&id](const Record& known) { return known.id == id; });
        *this = std::move(patched);
    }
};

}  // namespace larkspan::presentation
