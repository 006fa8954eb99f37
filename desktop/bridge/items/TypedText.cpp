#include "bridge/items/TypedText.h"

#include <QTextDocument>

namespace larkspan::bridge {

QString TypedText::of(const QQuickTextDocument* document)
{
    return document->textDocument()->toRawText().replace(QChar::ParagraphSeparator, QChar::LineFeed);
}

}  // namespace larkspan::bridge
