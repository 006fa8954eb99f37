#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

#include "workspace/Dashboard.h"

namespace larkspan::bridge {

/// The dashboard's rows. A refresh patches them by id, so that scroll position, focus and selection survive it.
class StatusPageListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    using Row = workspace::Dashboard::Row;
    enum Role { IdRole = Qt::UserRole, NameRole, SymbolRole, ToneRole, LabelRole };

    using QAbstractListModel::QAbstractListModel;

    /// Makes `rows` what the list holds, by the fewest notices that get there.
    void update(std::vector<Row> rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void removeVanished(const std::vector<Row>& target);
    void moveOrInsert(std::vector<Row>& target);

    std::vector<Row> rows_;
};

}  // namespace larkspan::bridge
