#pragma once

#include <QFont>
#include <QList>

#include <map>
#include <memory>

#include "messages/markdown/MarkdownRow.h"

namespace larkspan::bridge {

/// The columns of tables, as wide as their widest texts are drawn; measured once for all rows of a table.
class MeasuredColumns {
public:
    using Columns = std::shared_ptr<const messages::MarkdownColumns>;

    struct Drawing {
        QFont ofHeaders;
        QFont ofCells;
        /// The largest width of a column; measuring stops as soon as it is reached.
        qreal most = 0;

        bool operator==(const Drawing&) const = default;
    };

    QList<qreal> widthsOf(const Columns& columns, const Drawing& drawing);

private:
    Drawing drawing_;
    // Held, so that no other object gets the address of a measured one.
    std::map<Columns, QList<qreal>> widths_;
};

}  // namespace larkspan::bridge
