#include "adapters/tray/DBusMenuModel.h"

#include <QSet>

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "adapters/tray/MenuRowProperties.h"
#include "platform/BoundedMenu.h"

namespace larkspan::adapters {

namespace {

using platform::MenuRow;

bool isSameItem(const MenuRow& one, const MenuRow& other)
{
    return one.kind == other.kind && one.action == other.action && one.representedObject == other.representedObject;
}

/// Identifies an item in its menu. The number counts those that are otherwise equal.
using Identity = std::tuple<MenuRow::Kind, MenuRow::Action, std::string, int>;

/// Assigns identities to the rows of a menu from the first to the last.
class Identities {
public:
    Identity next(const MenuRow& row)
    {
        return {
            row.kind, row.action, row.representedObject, ++counts_[{row.kind, row.action, row.representedObject, 0}]};
    }

private:
    std::map<Identity, int> counts_;
};

void noteChange(DBusMenuModel::Change& change, int id, const MenuRow& old, const MenuRow& row)
{
    if (old == row) return;
    // The title is long and seldom changes; what a screen reader says is made of it and of the tool tip.
    const bool isSaidTheSame = old.title == row.title && old.toolTip == row.toolTip;
    const auto propertiesOf = [isSaidTheSame](const MenuRow& from) {
        return menuRowProperties({.kind = from.kind,
            .title = isSaidTheSame ? std::string() : from.title,
            .keyEquivalent = from.keyEquivalent,
            .dot = from.dot,
            .toolTip = from.toolTip});
    };
    const auto before = propertiesOf(old);
    const auto after = propertiesOf(row);

    DBusMenuItem updated{id};
    for (const auto& [name, value] : after.asKeyValueRange()) {
        if (before.value(name) != value) updated.properties.insert(name, value);
    }
    DBusMenuItemKeys removed{id};
    for (const auto& [name, value] : before.asKeyValueRange()) {
        if (!after.contains(name)) removed.properties << name;
    }
    if (!updated.properties.isEmpty()) change.updated << updated;
    if (!removed.properties.isEmpty()) change.removed << removed;
}

/// The properties that a host asked for by name; all of them if it named none.
class Selection {
public:
    explicit Selection(const QStringList& names)
        : names_(names.begin(), names.end())
    {
    }

    QVariantMap of(QVariantMap properties) const
    {
        if (names_.isEmpty()) return properties;
        properties.removeIf([this](const auto& property) { return !names_.contains(property.key()); });
        return properties;
    }

private:
    QSet<QString> names_;
};

QVariantMap rootProperties()
{
    return {{"children-display", "submenu"}};
}

}  // namespace

DBusMenuModel::Change DBusMenuModel::setRows(const std::vector<MenuRow>& allRows)
{
    // The bus cuts a program off that sends a message too large for it.
    auto rows = platform::boundedMenu(allRows);
    Change change;
    if (hasSameItems(rows)) {
        for (std::size_t position = 0; position < rows.size(); ++position) {
            noteChange(change, ids_[position], rows_[position], rows[position]);
        }
    } else {
        arrange(rows, change);
    }
    rows_ = std::move(rows);
    return change;
}

bool DBusMenuModel::hasSameItems(const std::vector<MenuRow>& rows) const
{
    return std::equal(rows_.begin(), rows_.end(), rows.begin(), rows.end(), isSameItem);
}

void DBusMenuModel::arrange(const std::vector<MenuRow>& rows, Change& change)
{
    std::map<Identity, std::size_t> known;
    Identities oldIdentities;
    for (std::size_t position = 0; position < rows_.size(); ++position) {
        known.emplace(oldIdentities.next(rows_[position]), position);
    }

    std::vector<int> ids;
    QHash<int, std::size_t> positions;
    Identities identities;
    for (const auto& row : rows) {
        const auto old = known.find(identities.next(row));
        const int id = old == known.end() ? ++lastId_ : ids_[old->second];
        // Every host requests a changed layout, but not every one requests the properties of items that it knows.
        if (old != known.end()) noteChange(change, id, rows_[old->second], row);
        positions.insert(id, ids.size());
        ids.push_back(id);
    }
    ids_ = std::move(ids);
    positions_ = std::move(positions);
    ++revision_;
    change.isLayoutChanged = true;
}

const MenuRow* DBusMenuModel::row(int id) const
{
    const auto position = positions_.constFind(id);
    return position == positions_.cend() ? nullptr : &rows_[*position];
}

std::optional<DBusMenuLayout> DBusMenuModel::layout(int id, int depth, const QStringList& names) const
{
    const Selection selection(names);
    if (const auto* const found = row(id)) return DBusMenuLayout{id, selection.of(menuRowProperties(*found))};
    if (id != rootId) return std::nullopt;

    DBusMenuLayout root{rootId, selection.of(rootProperties())};
    if (depth == 0) return root;
    for (std::size_t position = 0; position < rows_.size(); ++position) {
        root.children << DBusMenuLayout{ids_[position], selection.of(menuRowProperties(rows_[position]))};
    }
    return root;
}

QList<DBusMenuItem> DBusMenuModel::properties(const QList<int>& ids, const QStringList& names) const
{
    const Selection selection(names);
    const QSet<int> wanted(ids.begin(), ids.end());
    const auto isWanted = [&](int id) { return wanted.isEmpty() || wanted.contains(id); };

    QList<DBusMenuItem> items;
    if (isWanted(rootId)) items << DBusMenuItem{rootId, selection.of(rootProperties())};
    for (std::size_t position = 0; position < rows_.size(); ++position) {
        if (!isWanted(ids_[position])) continue;
        items << DBusMenuItem{ids_[position], selection.of(menuRowProperties(rows_[position]))};
    }
    return items;
}

QVariant DBusMenuModel::property(int id, const QString& name) const
{
    if (id == rootId) return rootProperties().value(name);
    const auto* const found = row(id);
    return found ? menuRowProperties(*found).value(name) : QVariant();
}

}  // namespace larkspan::adapters
