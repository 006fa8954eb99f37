#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

template <typename Value>
class RowListModel;

/// The rows of a list for QML: one role, `row`, which is a row as a value of its own type.
class ListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a bridge")

public:
    enum Role { RowRole = Qt::UserRole };

    using QAbstractListModel::QAbstractListModel;

    QHash<int, QByteArray> roleNames() const final;

    /// The row that `letters` mean, typed one after the other while `current` is the current row: the next one whose
    /// title starts with them, from the current one on and past the end to the start, ignoring the case of letters. For
    /// a single letter, also if repeated, the search starts after the current row. Returns -1 if there is none.
    Q_INVOKABLE int rowMeantBy(const QString& letters, int current) const;

    /// The first row at which the keyboard stops, from `row` on in that direction, 1 or -1: headings are skipped.
    /// Returns -1 if there is none.
    Q_INVOKABLE int stopFrom(int row, int direction) const;

protected:
    virtual QString titleOf(int row) const = 0;
    virtual bool isHeading(int row) const = 0;
};

}  // namespace larkspan::bridge
