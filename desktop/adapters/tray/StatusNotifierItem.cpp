#include "adapters/tray/StatusNotifierItem.h"

#include <utility>

#include "adapters/tray/StatusIcon.h"

namespace larkspan::adapters {

using platform::MenuRow;

StatusNotifierItem::StatusNotifierItem(const SessionBus& bus, const Appearance& appearance, QObject* parent)
    : QObject(parent)
    , bus_(bus)
    , appearance_(appearance)
    , watcher_(bus_)
    , menu_([this](const MenuRow& row) { perform(row); })
{
    connect(&watcher_, &StatusNotifierWatcher::hasHostChanged, this, &StatusNotifierItem::hasHostChanged);
    connect(&watcher_, &StatusNotifierWatcher::hasHostChanged, this, [this] {
        if (shownChanged_) shownChanged_();
    });
    connect(&appearance_, &Appearance::isDarkChanged, this, &StatusNotifierItem::updateIcon);
    connect(&item_, &StatusNotifierItemService::activated, this,
        [this] { perform({.kind = MenuRow::Kind::command, .action = MenuRow::Action::openDashboard}); });
    connect(&item_, &StatusNotifierItemService::activationTokenProvided, this,
        &StatusNotifierItem::activationTokenProvided);
}

void StatusNotifierItem::show(std::function<void(const MenuRow& row)> perform)
{
    perform_ = std::move(perform);
    connect(&bus_, &SessionBus::changed, this, &StatusNotifierItem::offer);
    offer();
    watcher_.registerItem();
}

void StatusNotifierItem::offer()
{
    auto bus = bus_.connection();
    const auto exported = QDBusConnection::ExportScriptableContents;
    bus.registerObject(StatusNotifierItemService::objectPath, &item_, exported);
    bus.registerObject(StatusNotifierItemService::menuPath, &menu_, exported);
}

void StatusNotifierItem::setButton(const Button& button)
{
    button_ = button;
    updateIcon();
    item_.setToolTip(QString::fromStdString(button.toolTip));
}

void StatusNotifierItem::setMenu(const std::vector<MenuRow>& rows)
{
    menu_.setRows(rows);
}

void StatusNotifierItem::perform(const MenuRow& row) const
{
    // A copy, since the action may destroy this object.
    const auto perform = perform_;
    if (perform) perform(row);
}

void StatusNotifierItem::updateIcon()
{
    const StatusIcon icon(button_.symbolName, appearance_.isDark());
    item_.setIcon(icon, QString::fromStdString(button_.accessibilityDescription));
}

}  // namespace larkspan::adapters
