#include "bridge/messages/MessageBridge.h"

#include <algorithm>
#include <utility>

namespace larkspan::bridge {

MessageBridge::MessageBridge(std::shared_ptr<messages::MessageView> view, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , view_(std::move(view))
{
    followChangesOf(*view_);
}

void MessageBridge::show(const std::string& source)
{
    if (source_ == source) return;
    source_ = source;
    rows_.update(MessageEntry::entriesOf(messages::MessageView::rowsOf(source)));
    emit changed();
}

bool MessageBridge::takesKeys() const
{
    return std::ranges::any_of(rows_.rows(),
        [](const MessageEntry& entry) { return !entry.row.text.links.empty() || !entry.row.cells.empty(); });
}

ConfirmationValue MessageBridge::linkConfirmation() const
{
    auto confirmation = ConfirmationValue::of(messages::MessageView::linkConfirmation);
    confirmation.text = words(view_->questionText());
    return confirmation;
}

QList<qreal> MessageBridge::columnWidths(int row, const QFont& headerFont, const QFont& cellFont, qreal most)
{
    const auto place = static_cast<std::size_t>(row);
    if (row < 0 || place >= rows_.rows().size() || !rows_.rows()[place].columns) return {};
    return columns_.widthsOf(rows_.rows()[place].columns, {headerFont, cellFont, most});
}

void MessageBridge::follow(int row, int cell, const QString& href)
{
    const auto& shown = rows_.rows().at(static_cast<std::size_t>(row)).row;
    const auto& text = cell < 0 ? shown.text : shown.cells.at(static_cast<std::size_t>(cell));
    bool isNumber = false;
    const auto place = href.toULongLong(&isNumber);
    if (isNumber && place < text.links.size()) view_->follow(text.links[place]);
}

}  // namespace larkspan::bridge
