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
    messages::MarkdownRow row{.kind = messages::MarkdownRow::Kind::paragraph};
    /// Shared by the rows of a table, so that a change of it changes each of them.
    std::shared_ptr<const messages::MarkdownColumns> columns{};

    static std::vector<MessageEntry> entriesOf(messages::MarkdownRows rows);

    bool operator==(const MessageEntry&) const = default;
};

}  // namespace larkspan::bridge
