#include "ShownText.h"

#include <QFont>
#include <QGlyphRun>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextLayout>

#include <algorithm>
#include <iterator>

namespace larkspan::gallery {

namespace {

/// The place of a text's lines in its item.
QRectF paintedIn(const QQuickItem& item)
{
    const auto number = [&item](const char* name) { return item.property(name).toReal(); };
    const auto share = [](int alignment, int middle, int end) {
        return alignment & end ? 1.0 : alignment & middle ? 0.5 : 0.0;
    };
    const QRectF room
        = QRectF(0, 0, item.width(), item.height())
              .adjusted(number("leftPadding"), number("topPadding"), -number("rightPadding"), -number("bottomPadding"));
    const QSizeF size(number("contentWidth"), number("contentHeight"));
    auto across = share(item.property("effectiveHorizontalAlignment").toInt(), Qt::AlignHCenter, Qt::AlignRight);
    const auto down = share(item.property("verticalAlignment").toInt(), Qt::AlignVCenter, Qt::AlignBottom);
    return {
        QPointF(room.x() + across * (room.width() - size.width()), room.y() + down * (room.height() - size.height())),
        size};
}

bool isText(const QQuickItem& item)
{
    return item.inherits("QQuickText") || item.inherits("QQuickTextEdit") || item.inherits("QQuickTextInput");
}

bool isScrolling(const QQuickItem& item)
{
    return item.inherits("QQuickFlickable");
}

/// The length of the scrolled content with its margins.
qreal lengthOf(const QQuickItem& item, const char* content, const char* before, const char* behind)
{
    return item.property(content).toReal() + item.property(before).toReal() + item.property(behind).toReal();
}

/// A field scrolls its own text.
bool scrollsItself(const QQuickItem& item)
{
    return item.inherits("QQuickTextInput");
}

bool isTransparent(const QQuickItem& item)
{
    for (const auto* each = &item; each; each = each->parentItem()) {
        if (each->opacity() == 0) return true;
    }
    return false;
}

/// A character without a glyph is drawn as glyph 0, a box.
bool hasBox(QString text, const QFont& font)
{
    text.replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(text, font);
    layout.beginLayout();
    while (layout.createLine().isValid()) {}
    layout.endLayout();
    return std::ranges::any_of(layout.glyphRuns(), [](const QGlyphRun& run) { return run.glyphIndexes().contains(0); });
}

class Walk {
public:
    explicit Walk(const QQuickWindow& window)
        : window_(window)
    {
        visit(*window.contentItem());
    }

    std::vector<ShownText> texts;

private:
    void visit(const QQuickItem& item)
    {
        if (!item.isVisible()) return;
        if (isText(item) && !item.property("text").toString().isEmpty() && !isTransparent(item)) add(item);
        for (const auto* child : item.childItems()) visit(*child);
    }

    void add(const QQuickItem& item)
    {
        ShownText text;
        text.text = item.property("text").toString();
        text.hasBox = hasBox(text.text, item.property("font").value<QFont>());
        text.layer = window_.contentItem();
        text.painted = item.mapRectToScene(paintedIn(item));
        text.seen = text.painted;
        bool scrollsDown = false;
        text.scrollsItself = scrollsItself(item);
        bool scrollsAcross = text.scrollsItself;
        for (const auto* each = &item; each; each = each->parentItem()) {
            if (each->property("floats").toBool()) text.floating = each;
            if (each->inherits("QQuickOverlay")) text.layer = layerIn(*each, item);
            const auto frame = each->mapRectToScene(QRectF(0, 0, each->width(), each->height()));
            if (isScrolling(*each)) {
                scrollsDown
                    = scrollsDown || lengthOf(*each, "contentHeight", "topMargin", "bottomMargin") > each->height();
                scrollsAcross
                    = scrollsAcross || lengthOf(*each, "contentWidth", "leftMargin", "rightMargin") > each->width();
            }
            if (text.cut.isEmpty() && (each->clip() || !each->parentItem())) {
                text.cut = cutBy(frame, text.painted, scrollsAcross, scrollsDown);
            }
            if (each->clip()) text.seen &= frame;
        }
        if (text.seen.width() > 1 && text.seen.height() > 1) texts.push_back(text);
    }

    static const QQuickItem* layerIn(const QQuickItem& overlay, const QQuickItem& item)
    {
        const auto* each = &item;
        while (each->parentItem() != &overlay) each = each->parentItem();
        return each;
    }

    static QString cutBy(const QRectF& frame, const QRectF& painted, bool scrollsAcross, bool scrollsDown)
    {
        constexpr qreal slack = 1.5;
        if (!scrollsAcross && (painted.left() < frame.left() - slack || painted.right() > frame.right() + slack)) {
            return QStringLiteral("at its sides");
        }
        if (!scrollsDown && (painted.top() < frame.top() - slack || painted.bottom() > frame.bottom() + slack)) {
            return QStringLiteral("above or below");
        }
        return {};
    }

    const QQuickWindow& window_;
};

/// Whether two texts overlap; lines that touch do not.
bool overlap(const ShownText& one, const ShownText& other)
{
    if (one.layer != other.layer || one.floating != other.floating) return false;
    const auto both = one.seen & other.seen;
    return both.width() > 2 && both.height() > 2;
}

std::string words(const ShownText& text)
{
    return "\"" + text.text.left(60).toStdString() + "\"";
}

}  // namespace

std::vector<ShownText> textsOf(const QQuickWindow& window)
{
    return Walk(window).texts;
}

TextFindings findingsIn(const QQuickWindow& window)
{
    TextFindings findings;
    const auto texts = textsOf(window);
    if (texts.empty()) findings.emplace_back("there is no text");
    for (auto one = texts.begin(); one != texts.end(); ++one) {
        if (!one->cut.isEmpty()) findings.push_back(words(*one) + " is cut " + one->cut.toStdString());
        if (one->hasBox) findings.push_back(words(*one) + " has a character without a glyph");
        for (auto other = std::next(one); other != texts.end(); ++other) {
            if (overlap(*one, *other)) findings.push_back(words(*one) + " lies on " + words(*other));
        }
    }
    return findings;
}

}  // namespace larkspan::gallery
