#include "bridge/StatusPageListModel.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "bridge/ToneNames.h"

namespace larkspan::bridge {

namespace {

using Row = StatusPageListModel::Row;

std::unordered_set<std::string_view> idsOf(const std::vector<Row>& rows)
{
    std::unordered_set<std::string_view> ids;
    ids.reserve(rows.size());
    for (const auto& row : rows) ids.insert(row.id);
    return ids;
}

std::ptrdiff_t offset(int index)
{
    return static_cast<std::ptrdiff_t>(index);
}

}  // namespace

int StatusPageListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant StatusPageListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const auto& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole: return QString::fromStdString(row.id);
    case Qt::DisplayRole:
    case NameRole: return QString::fromStdString(row.name);
    case SymbolRole: return QString::fromStdString(row.symbol);
    case ToneRole: return QVariant::fromValue(toneOf(row.tone));
    case LabelRole: return QString::fromStdString(row.label);
    default: return {};
    }
}

QHash<int, QByteArray> StatusPageListModel::roleNames() const
{
    return {{IdRole, "pageId"}, {NameRole, "name"}, {SymbolRole, "symbol"}, {ToneRole, "tone"}, {LabelRole, "label"}};
}

void StatusPageListModel::update(std::vector<Row> rows)
{
    removeVanished(rows);
    moveOrInsert(rows);
}

void StatusPageListModel::removeVanished(const std::vector<Row>& target)
{
    const auto kept = idsOf(target);
    for (int end = rowCount(); end > 0;) {
        const auto isKept
            = [this, &kept](int index) { return kept.contains(rows_[static_cast<std::size_t>(index)].id); };
        if (isKept(end - 1)) {
            --end;
            continue;
        }
        int begin = end - 1;
        while (begin > 0 && !isKept(begin - 1)) --begin;
        beginRemoveRows({}, begin, end - 1);
        rows_.erase(rows_.begin() + offset(begin), rows_.begin() + offset(end));
        endRemoveRows();
        end = begin;
    }
}

void StatusPageListModel::moveOrInsert(std::vector<Row>& target)
{
    // By the target's own texts, which stay where they are until their turn.
    auto held = idsOf(target);
    std::erase_if(held, [present = idsOf(rows_)](auto id) { return !present.contains(id); });
    for (int at = 0; at < static_cast<int>(target.size()); ++at) {
        auto& wanted = target[static_cast<std::size_t>(at)];
        const auto here = rows_.begin() + offset(at);
        if (at < rowCount() && here->id == wanted.id) {
            held.erase(wanted.id);
            if (*here == wanted) continue;
            *here = std::move(wanted);
            emit dataChanged(index(at), index(at));
        } else if (held.erase(wanted.id) > 0) {
            const auto from = std::ranges::find(here, rows_.end(), wanted.id, &Row::id);
            beginMoveRows({}, static_cast<int>(from - rows_.begin()), static_cast<int>(from - rows_.begin()), {}, at);
            std::rotate(here, from, from + 1);
            endMoveRows();
            if (*here != wanted) {
                *here = std::move(wanted);
                emit dataChanged(index(at), index(at));
            }
        } else {
            // An id that the service gives twice is shown twice: the second one is new here.
            int last = at;
            while (last + 1 < static_cast<int>(target.size())
                && !held.contains(target[static_cast<std::size_t>(last + 1)].id)) {
                ++last;
            }
            beginInsertRows({}, at, last);
            rows_.insert(here, std::make_move_iterator(target.begin() + offset(at)),
                std::make_move_iterator(target.begin() + offset(last + 1)));
            endInsertRows();
            at = last;
        }
    }
    const auto size = static_cast<int>(target.size());
    if (rowCount() > size) {
        beginRemoveRows({}, size, rowCount() - 1);
        rows_.erase(rows_.begin() + offset(size), rows_.end());
        endRemoveRows();
    }
}

}  // namespace larkspan::bridge
