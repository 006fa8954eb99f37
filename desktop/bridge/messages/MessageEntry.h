#pragma once

#include <memory>
#include <string>
#include <vector>

#include "messages/markdown/MarkdownRow.h"

namespace larkspan::bridge {

/// A row of a message in a list. A message has no ids, so a row is known by its place.
struct MessageEntry {
    std::string id{};
    std::string title{};
    incidents::MarkdownRow row{.kind = incidents::MarkdownRow::Kind::paragraph};
    /// What a table's rows have in common, so that each of them has changed where that has.
    std::shared_ptr<const incidents::MarkdownColumns> columns{};

    static std::vector<MessageEntry> entriesOf(incidents::MarkdownRows rows);

    bool operator==(const MessageEntry&) const = default;
};

}  // namespace larkspan::bridge
