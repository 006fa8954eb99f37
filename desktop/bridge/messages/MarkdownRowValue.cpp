#include "bridge/messages/MarkdownRowValue.h"

#include "bridge/lists/ValueList.h"
#include "bridge/values/Words.h"

namespace larkspan::bridge {

MarkdownRowValue MarkdownRowValue::of(const MessageEntry& entry)
{
    using Kind = messages::MarkdownRow::Kind;
    const auto& row = entry.row;
    MarkdownRowValue value;
    value.isTitle = row.kind == Kind::title;
    value.isHeading = row.kind == Kind::title || row.kind == Kind::headline;
    value.isQuote = row.kind == Kind::quote;
    value.isItem = row.kind == Kind::bulletItem || row.kind == Kind::numberedItem;
    value.isTable = row.isOfTable();
    value.isTableHeader = row.kind == Kind::tableHeader;
    value.isDivider = row.kind == Kind::tableDivider;
    value.continuesPrevious = row.continuesPrevious;
    value.label = words(row.label);
    value.text = MarkdownTextValue::of(row.text);
    value.cells = valuesOf<MarkdownTextValue>(row.cells);
    value.gap = row.gap;
    value.table = static_cast<int>(row.table);
    if (entry.columns) value.columns = static_cast<int>(entry.columns->widestTexts.size());
    return value;
}

}  // namespace larkspan::bridge
