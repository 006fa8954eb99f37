#pragma once

#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

#include "adapters/tray/DBusMenuModel.h"
#include "adapters/tray/DBusMenuTypes.h"
#include "platform/StatusItem.h"

namespace larkspan::adapters {

/// The menu's object on the bus for the desktop's panel, version 3 of the protocol. Calls that make no sense are
/// refused or ignored. Main thread only.
class DBusMenuService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    /// `choose` is called for a command that the user chooses, in a later turn of the event loop; of several that a
    /// host reports in one turn, for the first.
    explicit DBusMenuService(std::function<void(const platform::MenuRow& row)> choose);

    /// Tells the hosts what differs from the previous rows, if anything does.
    void setRows(const std::vector<platform::MenuRow>& rows);

    uint version() const { return 3; }
    QString textDirection() const;
    QString status() const { return "normal"; }
    QStringList iconThemePath() const { return {}; }

public slots:
    Q_SCRIPTABLE uint GetLayout(
        int parentId, int recursionDepth, const QStringList& propertyNames, larkspan::adapters::DBusMenuLayout& layout);
    Q_SCRIPTABLE QList<larkspan::adapters::DBusMenuItem> GetGroupProperties(
        const QList<int>& ids, const QStringList& propertyNames);
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString& name);
    Q_SCRIPTABLE void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    Q_SCRIPTABLE QList<int> EventGroup(const QList<larkspan::adapters::DBusMenuEvent>& events);
    Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

signals:
    Q_SCRIPTABLE void ItemsPropertiesUpdated(const QList<larkspan::adapters::DBusMenuItem>& updatedProps,
        const QList<larkspan::adapters::DBusMenuItemKeys>& removedProps);
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

private:
    void refuse(int id);
    void handle(int id, const QString& event);

    std::function<void(const platform::MenuRow& row)> choose_;
    DBusMenuModel model_;
    bool isChoosing_ = false;
};

}  // namespace larkspan::adapters
