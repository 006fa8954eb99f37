#include "bridge/StatusPageListModel.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <string_view>
#include <utility>

#include "bridge/RowOrder.h"
#include "bridge/ToneNames.h"

namespace larkspan::bridge {

namespace {

using Row = StatusPageListModel::Row;

/// A list that changes its whole order at once is cheaper to lay out anew than to move row by row.
constexpr std::ptrdiff_t mostSingleMoves = 100;

std::vector<std::string_view> idsOf(const std::vector<Row>& rows)
{
    std::vector<std::string_view> ids;
    ids.reserve(rows.size());
    for (const auto& row : rows) ids.push_back(row.id);
    return ids;
}

/// Takes the element at `from` to before the one at `to`.
template <typename Elements>
void moveElement(Elements& elements, std::ptrdiff_t from, std::ptrdiff_t to)
{
    const auto begin = elements.begin();
    if (from < to) {
        std::rotate(begin + from, begin + from + 1, begin + to);
    } else {
        std::rotate(begin + to, begin + from, begin + from + 1);
    }
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
    auto places = wantedPlaces(idsOf(rows_), idsOf(rows));
    removeVanished(places);

    std::vector<std::size_t> kept;
    kept.reserve(rows_.size());
    for (const auto& place : places) {
        if (place) kept.push_back(*place);
    }
    reorder(kept);
    insertAndPatch(rows, kept);
}

void StatusPageListModel::removeVanished(const std::vector<std::optional<std::size_t>>& places)
{
    for (auto end = static_cast<int>(places.size()); end > 0;) {
        const auto isKept = [&places](int row) { return places[static_cast<std::size_t>(row)].has_value(); };
        if (isKept(end - 1)) {
            --end;
            continue;
        }
        int begin = end - 1;
        while (begin > 0 && !isKept(begin - 1)) --begin;
        beginRemoveRows({}, begin, end - 1);
        rows_.erase(rows_.begin() + begin, rows_.begin() + end);
        endRemoveRows();
        end = begin;
    }
}

void StatusPageListModel::reorder(std::vector<std::size_t>& places)
{
    auto isInRun = longestRun(places);
    if (std::ranges::count(isInRun, false) > mostSingleMoves) {
        sortAtOnce(places);
        return;
    }
    for (auto stray = std::ranges::find(isInRun, false); stray != isInRun.end();
         stray = std::ranges::find(isInRun, false)) {
        const auto from = stray - isInRun.begin();
        const auto place = places[static_cast<std::size_t>(from)];
        std::ptrdiff_t to = 0;
        for (std::ptrdiff_t at = 0; at < std::ssize(places); ++at) {
            if (isInRun[static_cast<std::size_t>(at)] && places[static_cast<std::size_t>(at)] < place) to = at + 1;
        }
        *stray = true;
        if (to == from || to == from + 1) continue;
        beginMoveRows({}, static_cast<int>(from), static_cast<int>(from), {}, static_cast<int>(to));
        moveElement(rows_, from, to);
        moveElement(places, from, to);
        moveElement(isInRun, from, to);
        endMoveRows();
    }
}

void StatusPageListModel::sortAtOnce(std::vector<std::size_t>& places)
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<std::size_t> order(places.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&places](auto row) { return places[row]; });

    std::vector<Row> sorted;
    sorted.reserve(order.size());
    std::vector<int> newRow(order.size());
    for (std::size_t row = 0; row < order.size(); ++row) {
        sorted.push_back(std::move(rows_[order[row]]));
        newRow[order[row]] = static_cast<int>(row);
    }
    rows_ = std::move(sorted);
    std::ranges::sort(places);
    for (const auto& held : persistentIndexList()) {
        changePersistentIndex(held, index(newRow[static_cast<std::size_t>(held.row())]));
    }
    emit layoutChanged({}, VerticalSortHint);
}

void StatusPageListModel::insertAndPatch(std::vector<Row>& wanted, const std::vector<std::size_t>& places)
{
    std::size_t held = 0;
    for (std::size_t at = 0; at < wanted.size();) {
        const auto row = static_cast<int>(at);
        if (held < places.size() && places[held] == at) {
            if (rows_[at] != wanted[at]) {
                rows_[at] = std::move(wanted[at]);
                emit dataChanged(index(row), index(row));
            }
            ++held;
            ++at;
            continue;
        }
        const auto end = held < places.size() ? places[held] : wanted.size();
        beginInsertRows({}, row, static_cast<int>(end) - 1);
        rows_.insert(rows_.begin() + row, std::make_move_iterator(wanted.begin() + row),
            std::make_move_iterator(wanted.begin() + static_cast<std::ptrdiff_t>(end)));
        endInsertRows();
        at = end;
    }
}

}  // namespace larkspan::bridge
