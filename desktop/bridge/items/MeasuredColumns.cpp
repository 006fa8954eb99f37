#include "bridge/items/MeasuredColumns.h"

#include <QFontMetricsF>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

#include "bridge/values/Words.h"

namespace larkspan::bridge {

namespace {

/// Qt Quick's items draw text in sizes of whole and half points only.
QFont asDrawn(QFont font)
{
    if (font.pointSizeF() > 0) font.setPointSizeF(std::round(font.pointSizeF() * 2) / 2);
    return font;
}

/// Measures as `MessageText` draws.
class Measure {
public:
    explicit Measure(const QFont& font)
        : metrics_(asDrawn(font))
    {
        document_.setDocumentMargin(0);
        document_.setDefaultFont(asDrawn(font));
    }

    qreal widthOf(const std::string& styled)
    {
        // Most texts have no markup, and laying out a document takes about twenty times as long.
        if (styled.find_first_of("<&") == std::string::npos) return metrics_.horizontalAdvance(words(styled));
        document_.setHtml(words(styled));
        return document_.idealWidth();
    }

private:
    QFontMetricsF metrics_;
    QTextDocument document_;
};

}  // namespace

QList<qreal> MeasuredColumns::widthsOf(const Columns& columns, const Drawing& drawing)
{
    // Removes the widths of messages that are no longer shown.
    std::erase_if(widths_, [](const auto& measured) { return measured.first.use_count() == 1; });
    if (drawing != drawing_) widths_.clear();
    drawing_ = drawing;
    const auto [measured, isNew] = widths_.try_emplace(columns);
    if (!isNew) return measured->second;

    Measure headers(drawing.ofHeaders);
    Measure cells(drawing.ofCells);
    for (const auto& texts : columns->widestTexts) {
        qreal widest = 0;
        for (const auto& text : texts) {
            if (widest >= drawing.most) break;
            widest = std::max(widest, (text.isHeader ? headers : cells).widthOf(text.styled));
        }
        // A line that fills its width to the last fraction of a point would be broken.
        measured->second << std::ceil(std::min(widest + 1, drawing.most));
    }
    return measured->second;
}

}  // namespace larkspan::bridge
