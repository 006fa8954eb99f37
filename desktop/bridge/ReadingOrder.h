#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

/// The order in which a screen reader meets the rows of a list. Qt reads them in the order of their making, and a list
/// that scrolls or refreshes makes and reuses its rows in any order.
class ReadingOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Puts the children of `container` into the order in which they stand on screen, top to bottom.
    Q_INVOKABLE void follow(QQuickItem* container) const;
};

}  // namespace larkspan::bridge
