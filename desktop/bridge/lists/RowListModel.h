#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "bridge/lists/ListModel.h"
#include "bridge/lists/RowOrder.h"
#include "bridge/values/Words.h"

namespace larkspan::bridge {

/// A list of `Value::Row`, each converted to a `Value` when a screen asks for it. A row has an `id` and a `title` and
/// can be compared. A refresh patches the rows by id, so that scroll position, focus and selection survive.
template <typename Value>
class RowListModel final : public ListModel {
public:
    using Row = typename Value::Row;

    using ListModel::ListModel;

    const std::vector<Row>& rows() const { return rows_; }

    /// Replaces the rows by `wanted` with the fewest notifications.
    void update(std::vector<Row> wanted);

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != RowRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
        return QVariant::fromValue(Value::of(rows_[static_cast<std::size_t>(index.row())]));
    }

protected:
    QString titleOf(int row) const override { return words(rows_[static_cast<std::size_t>(row)].title); }
    bool isHeading(int row) const override
    {
        if constexpr (requires(const Row& each) { each.isHeading; }) {
            return rows_[static_cast<std::size_t>(row)].isHeading;
        } else {
            return false;
        }
    }

private:
    static std::vector<std::string_view> idsOf(const std::vector<Row>& rows);

    // Each held row is given by the place that it gets; absent if it is to be removed.
    void removeVanished(const std::vector<std::optional<std::size_t>>& places);
    void reorder(std::vector<std::size_t>& places);
    void sortAtOnce(std::vector<std::size_t>& places);
    void insertAndPatch(std::vector<Row>& wanted, const std::vector<std::size_t>& places);
    void insert(std::vector<Row>& wanted, std::size_t from, std::size_t end);
    void patch(std::vector<Row>& wanted, std::size_t from, std::size_t end);

    std::vector<Row> rows_;
};

template <typename Value>
void RowListModel<Value>::update(std::vector<Row> wanted)
{
    if (wanted == rows_) return;
    auto places = wantedPlaces(idsOf(rows_), idsOf(wanted));
    if (isResetCheaper(places, wanted.size())) {
        beginResetModel();
        rows_ = std::move(wanted);
        endResetModel();
        return;
    }
    removeVanished(places);

    std::vector<std::size_t> kept{};
    kept.reserve(rows_.size());
    for (const auto& place : places) {
        if (place) kept.push_back(*place);
    }
    reorder(kept);
    insertAndPatch(wanted, kept);
}

template <typename Value>
std::vector<std::string_view> RowListModel<Value>::idsOf(const std::vector<Row>& rows)
{
    std::vector<std::string_view> ids{};
    ids.reserve(rows.size());
    for (const auto& row : rows) ids.push_back(row.id);
    return ids;
}

template <typename Value>
void RowListModel<Value>::removeVanished(const std::vector<std::optional<std::size_t>>& places)
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

template <typename Value>
void RowListModel<Value>::reorder(std::vector<std::size_t>& places)
{
    auto isInRun = longestRun(places);
    const auto moves = static_cast<std::size_t>(std::ranges::count(isInRun, false));
    if (moves > mostSingleMoves || moves * places.size() > mostRowsMoved) {
        sortAtOnce(places);
        return;
    }
    for (auto stray = std::ranges::find(isInRun, false); stray != isInRun.end();
        stray = std::ranges::find(isInRun, false)) {
        const auto from = stray - isInRun.begin();
        const auto to = placeInRun(places, isInRun, places[static_cast<std::size_t>(from)]);
        *stray = true;
        if (to == from || to == from + 1) continue;
        beginMoveRows({}, static_cast<int>(from), static_cast<int>(from), {}, static_cast<int>(to));
        moveElement(rows_, from, to);
        moveElement(places, from, to);
        moveElement(isInRun, from, to);
        endMoveRows();
    }
}

template <typename Value>
void RowListModel<Value>::sortAtOnce(std::vector<std::size_t>& places)
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const auto order = ascending(places);
    std::vector<Row> sorted{};
    sorted.reserve(order.size());
    std::vector<int> newRow(order.size());
    for (std::size_t row = 0; row < order.size(); ++row) {
        sorted.push_back(std::move(rows_[order[row]]));
        newRow[order[row]] = static_cast<int>(row);
    }
    rows_ = std::move(sorted);
    places = placesInOrder(places, order);
    for (const auto& held : persistentIndexList()) {
        changePersistentIndex(held, index(newRow[static_cast<std::size_t>(held.row())]));
    }
    emit layoutChanged({}, VerticalSortHint);
}

template <typename Value>
void RowListModel<Value>::insertAndPatch(std::vector<Row>& wanted, const std::vector<std::size_t>& places)
{
    std::size_t held = 0;
    for (std::size_t at = 0; at < wanted.size();) {
        const auto from = at;
        while (held < places.size() && places[held] == at) {
            ++held;
            ++at;
        }
        patch(wanted, from, at);
        const auto end = held < places.size() ? places[held] : wanted.size();
        if (at < end) insert(wanted, at, end);
        at = end;
    }
}

template <typename Value>
void RowListModel<Value>::insert(std::vector<Row>& wanted, std::size_t from, std::size_t end)
{
    const auto first = static_cast<std::ptrdiff_t>(from);
    beginInsertRows({}, static_cast<int>(from), static_cast<int>(end) - 1);
    rows_.insert(rows_.begin() + first, std::make_move_iterator(wanted.begin() + first),
        std::make_move_iterator(wanted.begin() + static_cast<std::ptrdiff_t>(end)));
    endInsertRows();
}

template <typename Value>
void RowListModel<Value>::patch(std::vector<Row>& wanted, std::size_t from, std::size_t end)
{
    for (auto at = from; at < end;) {
        const auto first = at;
        for (; at < end && rows_[at] != wanted[at]; ++at) rows_[at] = std::move(wanted[at]);
        if (at > first) emit dataChanged(index(static_cast<int>(first)), index(static_cast<int>(at) - 1));
        if (at == first) ++at;
    }
}

}  // namespace larkspan::bridge
