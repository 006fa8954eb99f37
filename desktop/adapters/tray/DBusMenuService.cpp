#include "adapters/tray/DBusMenuService.h"

#include <QDBusError>
#include <QGuiApplication>

#include <utility>

namespace larkspan::adapters {

DBusMenuService::DBusMenuService(std::function<void(const platform::MenuRow& row)> choose)
    : choose_(std::move(choose))
{
    registerDBusMenuTypes();
}

void DBusMenuService::setRows(const std::vector<platform::MenuRow>& rows)
{
    const auto change = model_.setRows(rows);
    if (!change.updated.isEmpty() || !change.removed.isEmpty()) {
        emit ItemsPropertiesUpdated(change.updated, change.removed);
    }
    if (change.isLayoutChanged) emit LayoutUpdated(model_.revision(), DBusMenuModel::rootId);
}

QString DBusMenuService::textDirection() const
{
    return QGuiApplication::isRightToLeft() ? "rtl" : "ltr";
}

uint DBusMenuService::GetLayout(
    int parentId, int recursionDepth, const QStringList& propertyNames, DBusMenuLayout& layout)
{
    if (const auto found = model_.layout(parentId, recursionDepth, propertyNames)) {
        layout = *found;
    } else {
        refuse(parentId);
    }
    return model_.revision();
}

QList<DBusMenuItem> DBusMenuService::GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames)
{
    return model_.properties(ids, propertyNames);
}

QDBusVariant DBusMenuService::GetProperty(int id, const QString& name)
{
    const auto property = model_.property(id, name);
    if (property.isValid()) return QDBusVariant(property);
    refuse(id);
    return QDBusVariant(QString());
}

void DBusMenuService::Event(int id, const QString& eventId, const QDBusVariant&, uint)
{
    if (!model_.contains(id)) return refuse(id);
    handle(id, eventId);
}

QList<int> DBusMenuService::EventGroup(const QList<DBusMenuEvent>& events)
{
    QList<int> unknown;
    for (const auto& event : events) {
        if (model_.contains(event.id)) {
            handle(event.id, event.event);
        } else {
            unknown << event.id;
        }
    }
    return unknown;
}

/// The menu is always up to date.
bool DBusMenuService::AboutToShow(int id)
{
    if (!model_.contains(id)) refuse(id);
    return false;
}

QList<int> DBusMenuService::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors)
{
    for (const int id : ids) {
        if (!model_.contains(id)) idErrors << id;
    }
    return {};
}

void DBusMenuService::refuse(int id)
{
    sendErrorReply(QDBusError::InvalidArgs, QString("There is no such thing as asked for of item %1.").arg(id));
}

void DBusMenuService::handle(int id, const QString& event)
{
    const auto* const row = model_.row(id);
    if (!row || row->kind != platform::MenuRow::Kind::command || event != "clicked") return;
    // A user presses once at a time; a host that reports thousands of presses at once must not stop the program.
    if (std::exchange(isChoosing_, true)) return;
    // After the answer to the host, since the command may take a while and may destroy this object.
    QMetaObject::invokeMethod(
        this,
        [this, chosen = *row] {
            isChoosing_ = false;
            choose_(chosen);
        },
        Qt::QueuedConnection);
}

}  // namespace larkspan::adapters
