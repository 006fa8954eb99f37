#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace larkspan::adapters {

/// The types of `com.canonical.dbusmenu`; the comments are their signatures on the bus.
struct DBusMenuItem {  // (ia{sv})
    int id = 0;
    QVariantMap properties = {};
};

struct DBusMenuItemKeys {  // (ias)
    int id = 0;
    QStringList properties = {};
};

struct DBusMenuLayout {  // (ia{sv}av), each child in a variant
    int id = 0;
    QVariantMap properties = {};
    QList<DBusMenuLayout> children = {};
};

struct DBusMenuEvent {  // (isvu)
    int id = 0;
    QString event = {};
    QDBusVariant data = {};
    uint timestamp = 0;
};

/// A shortcut is a list of chords, a chord a list of keys.
using DBusMenuShortcut = QList<QStringList>;  // aas

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuItem& item);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuItemKeys& keys);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuLayout& layout);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuItem& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuItemKeys& keys);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuLayout& layout);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuEvent& event);

/// Call it before the first object that uses the types is exported.
void registerDBusMenuTypes();

}  // namespace larkspan::adapters

Q_DECLARE_METATYPE(larkspan::adapters::DBusMenuItem)
Q_DECLARE_METATYPE(larkspan::adapters::DBusMenuItemKeys)
Q_DECLARE_METATYPE(larkspan::adapters::DBusMenuLayout)
Q_DECLARE_METATYPE(larkspan::adapters::DBusMenuEvent)
