#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QString>

namespace larkspan::adapters {

/// The types of `org.kde.StatusNotifierItem`; the comments are their signatures on the bus.
struct StatusNotifierPixmap {  // (iiay)
    int width = 0;
    int height = 0;
    /// ARGB32, not premultiplied, each pixel in network byte order.
    QByteArray pixels = {};

    bool operator==(const StatusNotifierPixmap&) const = default;
};

using StatusNotifierPixmaps = QList<StatusNotifierPixmap>;  // a(iiay)

struct StatusNotifierToolTip {  // (sa(iiay)ss)
    QString iconName = {};
    StatusNotifierPixmaps iconPixmaps = {};
    QString title = {};
    /// Hosts read this one as markup.
    QString text = {};
};

QDBusArgument& operator<<(QDBusArgument& argument, const StatusNotifierPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const StatusNotifierToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, StatusNotifierPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, StatusNotifierToolTip& toolTip);

/// Call it before the first object that uses the types is exported.
void registerStatusNotifierTypes();

}  // namespace larkspan::adapters

Q_DECLARE_METATYPE(larkspan::adapters::StatusNotifierPixmap)
Q_DECLARE_METATYPE(larkspan::adapters::StatusNotifierToolTip)
