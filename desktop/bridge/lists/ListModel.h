#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

/// The rows of a list for QML: one role, `row`, that holds a row as a value of its own type.
class ListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a bridge")

public:
    enum Role { RowRole = Qt::UserRole };

    using QAbstractListModel::QAbstractListModel;

    QHash<int, QByteArray> roleNames() const final;

    /// The row that is meant by `letters`, typed one after the other with `current` as the current row: the next one
    /// whose title begins with them, from the current one on and over the end, in any case of letters. A first letter,
    /// and the same one again, goes on from the row behind. The answer is -1 if there is none.
    Q_INVOKABLE int rowMeantBy(const QString& letters, int current) const;

    /// The row, from `row` on in that direction, 1 or -1, at which the keyboard stops: headings are passed by. The
    /// answer is -1 if there is none.
    Q_INVOKABLE int stopFrom(int row, int direction) const;

protected:
    virtual QString titleOf(int row) const = 0;
    virtual bool isHeading(int row) const = 0;
};

}  // namespace larkspan::bridge
