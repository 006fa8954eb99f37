#include "bridge/menu/StatusMenuBridge.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace larkspan::bridge {

using platform::MenuRow;

namespace {

/// Not one of the panel's rows, so it has none of their actions.
MenuRow aboutRow()
{
    return {.kind = MenuRow::Kind::command, .title = "About Kestrune"};
}

}  // namespace

StatusMenuBridge::StatusMenuBridge(std::function<void()> showAbout, QObject* parent)
    : QObject(parent)
    , showAbout_(std::move(showAbout))
{
    StatusMenuBridge::setMenu({});
}

void StatusMenuBridge::show(std::function<void(const MenuRow& row)> perform)
{
    perform_ = std::move(perform);
}

void StatusMenuBridge::setMenu(const std::vector<MenuRow>& rows)
{
    wanted_.clear();
    wanted_.reserve(rows.size() + 2);
    std::ranges::transform(rows, std::back_inserter(wanted_), MenuEntry::of);
    wanted_.push_back(MenuEntry::of(MenuRow{}));
    wanted_.push_back(MenuEntry::of(aboutRow()));
    follow();
}

void StatusMenuBridge::setOpen(bool isOpen)
{
    isOpen_ = isOpen;
    follow();
}

void StatusMenuBridge::follow()
{
    if (!isOpen_ || hasSameRows(wanted_)) rows_.update(wanted_);
}

bool StatusMenuBridge::hasSameRows(const std::vector<MenuEntry>& entries) const
{
    return std::ranges::equal(rows_.rows(), entries, {}, &MenuEntry::id, &MenuEntry::id);
}

bool StatusMenuBridge::isCommand(int place) const
{
    return place >= 0 && place < rows_.rowCount()
        && rows_.rows()[static_cast<std::size_t>(place)].row.kind == MenuRow::Kind::command;
}

void StatusMenuBridge::choose(int place)
{
    if (!isCommand(place)) return;
    if (place == rows_.rowCount() - 1) return showAbout_();
    // A copy, since the action may rebuild the menu.
    const auto row = rows_.rows()[static_cast<std::size_t>(place)].row;
    if (perform_) perform_(row);
}

int StatusMenuBridge::placeOfKey(const QString& key) const
{
    const auto wanted = key.toLower().toStdString();
    if (wanted.empty()) return -1;
    const auto& entries = rows_.rows();
    const auto found = std::ranges::find(
        entries, wanted, [](const MenuEntry& entry) -> const std::string& { return entry.row.keyEquivalent; });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

int StatusMenuBridge::nextCommand(int place, int step) const
{
    for (int next = place + step; next >= 0 && next < rows_.rowCount(); next += step) {
        if (isCommand(next)) return next;
    }
    return place;
}

}  // namespace larkspan::bridge
