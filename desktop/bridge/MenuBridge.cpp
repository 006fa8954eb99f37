#include "bridge/MenuBridge.h"

#include <algorithm>
#include <utility>

#include "bridge/ToneNames.h"

namespace larkspan::bridge {

using platform::MenuRow;

namespace {

/// Not one of the panel's rows, so it has no action of theirs.
MenuRow aboutRow()
{
    return {.kind = MenuRow::Kind::command, .title = "About Kestrune"};
}

Tone::Value toneOfDot(MenuRow::Dot dot)
{
    switch (dot) {
    case MenuRow::Dot::green: return Tone::Green;
    case MenuRow::Dot::orange: return Tone::Orange;
    case MenuRow::Dot::red: return Tone::Red;
    case MenuRow::Dot::blue: return Tone::Blue;
    case MenuRow::Dot::gray:
    case MenuRow::Dot::none: break;
    }
    return Tone::Gray;
}

QString shortcutText(const std::string& key)
{
    return key.empty() ? QString() : QStringLiteral("Ctrl+") + QString::fromStdString(key).toUpper();
}

}  // namespace

MenuBridge::MenuBridge(std::function<void()> showAbout, QObject* parent)
    : QAbstractListModel(parent)
    , showAbout_(std::move(showAbout))
    , rows_{MenuRow{}, aboutRow()}
{
}

void MenuBridge::show(std::function<void(const MenuRow& row)> perform)
{
    perform_ = std::move(perform);
}

void MenuBridge::setMenu(const std::vector<MenuRow>& rows)
{
    auto wanted = rows;
    wanted.emplace_back();
    wanted.push_back(aboutRow());

    // What differs lies between a common head and a common tail.
    const auto [oldHead, newHead] = std::ranges::mismatch(rows_, wanted);
    const auto head = static_cast<int>(oldHead - rows_.begin());
    const int rest = static_cast<int>(std::min(rows_.size(), wanted.size())) - head;
    int tail = 0;
    while (tail < rest && rows_[rows_.size() - 1 - tail] == wanted[wanted.size() - 1 - tail]) ++tail;
    const int oldCount = static_cast<int>(rows_.size()) - head - tail;
    const int newCount = static_cast<int>(wanted.size()) - head - tail;
    const int patched = std::min(oldCount, newCount);

    if (oldCount > patched) {
        beginRemoveRows({}, head + patched, head + oldCount - 1);
        rows_ = std::move(wanted);
        endRemoveRows();
    } else if (newCount > patched) {
        beginInsertRows({}, head + patched, head + newCount - 1);
        rows_ = std::move(wanted);
        endInsertRows();
    } else {
        rows_ = std::move(wanted);
    }
    if (patched > 0) emit dataChanged(index(head), index(head + patched - 1));
}

int MenuBridge::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant MenuBridge::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const auto& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case TitleRole: return QString::fromStdString(row.title);
    case IsSeparatorRole: return row.kind == MenuRow::Kind::separator;
    case IsCommandRole: return row.kind == MenuRow::Kind::command;
    case HasDotRole: return row.dot != MenuRow::Dot::none;
    case ToneRole: return static_cast<int>(toneOfDot(row.dot));
    case ToolTipRole: return QString::fromStdString(row.toolTip);
    case ShortcutRole: return shortcutText(row.keyEquivalent);
    default: return {};
    }
}

QHash<int, QByteArray> MenuBridge::roleNames() const
{
    return {{TitleRole, "title"}, {IsSeparatorRole, "isSeparator"}, {IsCommandRole, "isCommand"},
        {HasDotRole, "hasDot"}, {ToneRole, "tone"}, {ToolTipRole, "help"}, {ShortcutRole, "shortcut"}};
}

bool MenuBridge::isCommand(int place) const
{
    return place >= 0 && place < rowCount() && rows_[static_cast<std::size_t>(place)].kind == MenuRow::Kind::command;
}

void MenuBridge::choose(int place)
{
    if (!isCommand(place)) return;
    if (place == rowCount() - 1) return showAbout_();
    // A copy: what it does may rebuild the menu.
    const auto row = rows_[static_cast<std::size_t>(place)];
    if (perform_) perform_(row);
}

int MenuBridge::placeOfKey(const QString& key) const
{
    const auto wanted = key.toLower().toStdString();
    if (wanted.empty()) return -1;
    const auto row = std::ranges::find(rows_, wanted, &MenuRow::keyEquivalent);
    return row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
}

int MenuBridge::nextCommand(int place, int step) const
{
    for (int next = place + step; next >= 0 && next < rowCount(); next += step) {
        if (isCommand(next)) return next;
    }
    return place;
}

}  // namespace larkspan::bridge
