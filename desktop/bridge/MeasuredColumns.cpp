#include "bridge/MeasuredColumns.h"

#include <QFontMetricsF>
#include <QTextDocument>

#include <algorithm>

#include "bridge/Words.h"

namespace larkspan::bridge {

namespace {

/// Measures as `MessageText` draws.
class Measure {
public:
    explicit Measure(const QFont& font)
        : metrics_(font)
    {
        document_.setDocumentMargin(0);
        document_.setDefaultFont(font);
    }

    qreal widthOf(const std::string& styled)
    {
        // Most texts have no markup, and laying out a document takes some twenty times as long.
        if (styled.find_first_of("<&") == std::string::npos) return metrics_.horizontalAdvance(words(styled));
        document_.setHtml(words(styled));
        return document_.idealWidth();
    }

private:
    QFontMetricsF metrics_;
    QTextDocument document_;
};

}  // namespace

QList<qreal> MeasuredColumns::widthsOf(const Columns& columns, const Fonts& fonts)
{
    // Those of a message that is no longer shown are of no use either.
    std::erase_if(widths_, [](const auto& measured) { return measured.first.use_count() == 1; });
    if (fonts != fonts_) widths_.clear();
    fonts_ = fonts;
    const auto [measured, isNew] = widths_.try_emplace(columns);
    if (!isNew) return measured->second;

    Measure headers(fonts.ofHeaders);
    Measure cells(fonts.ofCells);
    for (const auto& texts : columns->widestTexts) {
        qreal widest = 0;
        for (const auto& text : texts) {
            widest = std::max(widest, (text.isHeader ? headers : cells).widthOf(text.styled));
        }
        measured->second << widest;
    }
    return measured->second;
}

}  // namespace larkspan::bridge
