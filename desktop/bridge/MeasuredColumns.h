#pragma once

#include <QFont>
#include <QList>

#include <map>
#include <memory>

#include "incidents/markdown/MarkdownRow.h"

namespace larkspan::bridge {

/// The columns of tables, as wide as their widest texts are drawn; measured once for all rows of a table.
class MeasuredColumns {
public:
    using Columns = std::shared_ptr<const incidents::MarkdownColumns>;

    struct Fonts {
        QFont ofHeaders;
        QFont ofCells;

        bool operator==(const Fonts&) const = default;
    };

    QList<qreal> widthsOf(const Columns& columns, const Fonts& fonts);

private:
    Fonts fonts_;
    // Held, so that none comes to stand where another was measured.
    std::map<Columns, QList<qreal>> widths_;
};

}  // namespace larkspan::bridge
