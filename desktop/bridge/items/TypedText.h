#pragma once

#include <QObject>
#include <QQuickTextDocument>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

/// The exact text in a text edit, with line feeds between its paragraphs. In the text that Qt returns, no-break spaces
/// are replaced by blanks and line separators by line feeds.
class TypedText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static QString of(const QQuickTextDocument* document);
};

}  // namespace larkspan::bridge
