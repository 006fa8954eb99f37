#include "bridge/menu/StatusMenuBridge.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace larkspan::bridge {

using core::WindowMenu;
using platform::MenuRow;

namespace {

std::vector<MenuEntry> entriesOf(const std::vector<WindowMenu::Row>& rows)
{
    std::vector<MenuEntry> entries;
    entries.reserve(rows.size());
    std::ranges::transform(rows, std::back_inserter(entries), MenuEntry::of);
    return entries;
}

}  // namespace

StatusMenuBridge::StatusMenuBridge(std::function<void()> showAbout, QObject* parent)
    : QObject(parent)
    , showAbout_(std::move(showAbout))
{
    rebuild();
}

void StatusMenuBridge::show(std::function<void(const MenuRow& row)> perform)
{
    perform_ = std::move(perform);
}

void StatusMenuBridge::setButton(const Button& button)
{
    statusSymbol_ = button.symbolName;
    rebuild();
}

void StatusMenuBridge::setMenu(const std::vector<MenuRow>& rows)
{
    rows_ = rows;
    rebuild();
}

void StatusMenuBridge::rebuild()
{
    const auto menu = WindowMenu::of(rows_, statusSymbol_);
    wanted_ = {entriesOf(menu.summary), entriesOf(menu.pages), entriesOf(menu.incidents), entriesOf(menu.commands)};
    follow();
}

void StatusMenuBridge::setOpen(bool isOpen)
{
    isOpen_ = isOpen;
    follow();
}

void StatusMenuBridge::follow()
{
    if (isOpen_ && !hasWantedRows()) return;
    for (std::size_t part = 0; part < parts_.size(); ++part) parts_[part].update(wanted_[part]);
}

bool StatusMenuBridge::hasWantedRows() const
{
    return std::ranges::equal(parts_, wanted_, [](const auto& part, const Entries& wanted) {
        return std::ranges::equal(part.rows(), wanted, {}, &MenuEntry::id, &MenuEntry::id);
    });
}

int StatusMenuBridge::rowCount() const
{
    int count = 0;
    for (const auto& part : parts_) count += part.rowCount();
    return count;
}

const MenuRow* StatusMenuBridge::rowAt(int place) const
{
    if (place < 0) return nullptr;
    auto left = static_cast<std::size_t>(place);
    for (const auto& part : parts_) {
        if (left < part.rows().size()) return &part.rows()[left].shown.row;
        left -= part.rows().size();
    }
    return nullptr;
}

bool StatusMenuBridge::isCommand(int place) const
{
    const auto* const row = rowAt(place);
    return row && row->kind == MenuRow::Kind::command;
}

void StatusMenuBridge::choose(int place)
{
    if (!isCommand(place)) return;
    // A copy, since the action may rebuild the menu.
    const auto row = *rowAt(place);
    if (row == core::aboutRow()) return showAbout_();
    if (perform_) perform_(row);
}

int StatusMenuBridge::placeOfKey(const QString& key) const
{
    const auto wanted = key.toLower().toStdString();
    if (wanted.empty()) return -1;
    for (int place = 0; place < rowCount(); ++place) {
        if (rowAt(place)->keyEquivalent == wanted) return place;
    }
    return -1;
}

int StatusMenuBridge::nextCommand(int place, int step) const
{
    const int count = rowCount();
    for (int next = place + step; next >= 0 && next < count; next += step) {
        if (isCommand(next)) return next;
    }
    return place;
}

}  // namespace larkspan::bridge
