#include "bridge/lists/ListModel.h"

#include <algorithm>

namespace larkspan::bridge {

QHash<int, QByteArray> ListModel::roleNames() const
{
    return {{RowRole, "row"}};
}

int ListModel::rowMeantBy(const QString& letters, int current) const
{
    const int count = rowCount();
    if (letters.isEmpty() || count == 0) return -1;
    const bool isOneLetter = std::ranges::all_of(
        letters, [first = letters.front().toCaseFolded()](QChar letter) { return letter.toCaseFolded() == first; });
    const auto wanted = isOneLetter ? letters.first(1) : letters;
    const int start = std::max(current, -1) + (isOneLetter || current < 0 ? 1 : 0);
    for (int step = 0; step < count; ++step) {
        const int row = (start + step) % count;
        if (!isHeading(row) && titleOf(row).startsWith(wanted, Qt::CaseInsensitive)) return row;
    }
    return -1;
}

int ListModel::stopFrom(int row, int direction) const
{
    const int count = rowCount();
    while (row >= 0 && row < count && isHeading(row)) row += direction;
    return row >= 0 && row < count ? row : -1;
}

}  // namespace larkspan::bridge
