#pragma once

#include <QHash>
#include <QList>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

#include "adapters/tray/DBusMenuTypes.h"
#include "platform/StatusItem.h"

namespace larkspan::adapters {

/// The rows as a host of menus knows them: under ids that a row keeps for as long as it is there. A row is the same
/// when it does the same to the same record, so a host with the menu open never finds another page under the pointer
/// than the one it shows.
class DBusMenuModel {
public:
    /// The id of the menu itself, whose children the rows are.
    static constexpr int rootId = 0;

    /// What a host has to be told.
    struct Change {
        QList<DBusMenuItem> updated = {};
        QList<DBusMenuItemKeys> removed = {};
        bool isLayoutChanged = false;
    };

    Change setRows(const std::vector<platform::MenuRow>& rows);

    /// Counts the changes of the layout.
    uint revision() const { return revision_; }

    /// Null for an id that no row has.
    const platform::MenuRow* row(int id) const;
    bool contains(int id) const { return id == rootId || row(id) != nullptr; }

    /// The item with this id and `depth` levels below it, all for a negative one. No names ask for all properties.
    std::optional<DBusMenuLayout> layout(int id, int depth, const QStringList& names) const;
    /// No ids ask for every item; an unknown one is passed over.
    QList<DBusMenuItem> properties(const QList<int>& ids, const QStringList& names) const;
    /// Invalid if there is no such item or it has no such property.
    QVariant property(int id, const QString& name) const;

private:
    bool hasSameItems(const std::vector<platform::MenuRow>& rows) const;
    void arrange(const std::vector<platform::MenuRow>& rows, Change& change);

    std::vector<platform::MenuRow> rows_;
    std::vector<int> ids_;
    QHash<int, std::size_t> positions_;
    int lastId_ = rootId;
    uint revision_ = 1;
};

}  // namespace larkspan::adapters
