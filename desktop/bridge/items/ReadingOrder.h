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
    /// The child that follows all rows, even while none of them is in sight and the list does not yet know their
    /// heights.
    Q_PROPERTY(QQuickItem* last MEMBER last_ NOTIFY lastChanged)

public:
    explicit ReadingOrder(QObject* parent = nullptr);

    QQuickItem* container() const { return container_; }
    void setContainer(QQuickItem* container);

signals:
    void containerChanged();
    void lastChanged();

private:
    void watchRows();
    void settleSoon();
    void settle();

    QPointer<QQuickItem> container_;
    QQuickItem* last_ = nullptr;
    bool isPending_ = false;
};

}  // namespace larkspan::bridge
