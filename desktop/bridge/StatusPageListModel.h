#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <cstddef>
#include <optional>
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
    // The rows held are told by the places that they are wanted at.
    void removeVanished(const std::vector<std::optional<std::size_t>>& places);
    void reorder(std::vector<std::size_t>& places);
    void sortAtOnce(std::vector<std::size_t>& places);
    void insertAndPatch(std::vector<Row>& wanted, const std::vector<std::size_t>& places);

    std::vector<Row> rows_;
};

}  // namespace larkspan::bridge
