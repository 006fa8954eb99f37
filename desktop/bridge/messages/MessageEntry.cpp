#include "bridge/messages/MessageEntry.h"

#include <utility>

namespace larkspan::bridge {

std::vector<MessageEntry> MessageEntry::entriesOf(messages::MarkdownRows rows)
{
    std::vector<std::shared_ptr<const messages::MarkdownColumns>> tables;
    for (auto& table : rows.tables) {
        tables.push_back(std::make_shared<const messages::MarkdownColumns>(std::move(table)));
    }
    std::vector<MessageEntry> entries;
    entries.reserve(rows.rows.size());
    for (auto& row : rows.rows) {
        auto columns = row.isOfTable() ? tables.at(row.table) : nullptr;
        auto title = row.text.plain;
        entries.push_back({.id = std::to_string(entries.size()),
            .title = std::move(title),
            .row = std::move(row),
            .columns = std::move(columns)});
    }
    return entries;
}

}  // namespace larkspan::bridge
