#include "bridge/MeasuredColumns.h"

#include <QFontMetricsF>

#include <algorithm>

#include "bridge/Words.h"

namespace larkspan::bridge {

QList<qreal> MeasuredColumns::widthsOf(const Columns& columns, const QFont& font)
{
    // Those of a message that is no longer shown are of no use either.
    std::erase_if(widths_, [](const auto& measured) { return measured.first.use_count() == 1; });
    if (font != font_) widths_.clear();
    font_ = font;
    const auto [measured, isNew] = widths_.try_emplace(columns);
    if (!isNew) return measured->second;

    const QFontMetricsF metrics(font);
    for (const auto& texts : columns->widestTexts) {
        qreal widest = 0;
        for (const auto& text : texts) widest = std::max(widest, metrics.horizontalAdvance(words(text)));
        measured->second << widest;
    }
    return measured->second;
}

}  // namespace larkspan::bridge
