#pragma once

#include <memory>
#include <string>
#include <vector>

#include "messages/markdown/MarkdownRow.h"

namespace larkspan::bridge {

/// A row of a message in a list. Messages have no ids, so a row is identified by its place.
struct MessageEntry {
    std::string id{};
    std::string title{};
    incidents::MarkdownRow row{.kind = incidents::MarkdownRow::Kind::paragraph};
    /// Shared by the rows of a table, so that a change of it changes each of them.
    std::shared_ptr<const incidents::MarkdownColumns> columns{};

    static std::vector<MessageEntry> entriesOf(incidents::MarkdownRows rows);

    bool operator==(const MessageEntry&) const = default;
};

}  // namespace larkspan::bridge
