#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

/// Keeps the order in which a screen reader finds the rows of a list: as on screen, from top to bottom. Qt reads them
/// in order of creation, and a list that scrolls or refreshes creates, moves and reuses its rows in any order.
class ReadingOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The item whose children are the rows.
    Q_PROPERTY(QQuickItem* container READ container WRITE setContainer NOTIFY containerChanged)

public:
    using QObject::QObject;

    QQuickItem* container() const { return container_; }
    void setContainer(QQuickItem* container);

signals:
    void containerChanged();

private:
    void watchRows();
    void settleSoon();
    void settle();

    QPointer<QQuickItem> container_;
    bool isPending_ = false;
};

}  // namespace larkspan::bridge
