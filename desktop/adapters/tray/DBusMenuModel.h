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

/// The rows as hosts of menus see them, under ids that stay the same while a row exists. A row is the same if it does
/// the same to the same record, so that in an open menu the pointer is never on another page than the one shown.
class DBusMenuModel {
public:
    /// The id of the menu itself, whose children the rows are.
    static constexpr int rootId = 0;

    /// The changes that hosts have to be told.
    struct Change {
        QList<DBusMenuItem> updated = {};
        QList<DBusMenuItemKeys> removed = {};
        bool isLayoutChanged = false;
    };

    /// Of very many pages only the first are taken over.
    Change setRows(const std::vector<platform::MenuRow>& allRows);

    /// The number of changes of the layout so far.
    uint revision() const { return revision_; }

    /// The row with this id; null if there is none.
    const platform::MenuRow* row(int id) const;
    bool contains(int id) const { return id == rootId || row(id) != nullptr; }

    /// The item with this id and `depth` levels below it, all levels if negative. Without names it has all properties.
    std::optional<DBusMenuLayout> layout(int id, int depth, const QStringList& names) const;
    /// The properties of the items with these ids, of all items if there are none. Unknown ids are ignored.
    QList<DBusMenuItem> properties(const QList<int>& ids, const QStringList& names) const;
    /// Invalid if the item or its property does not exist.
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
