#pragma once

#include <QObject>
#include <QQuickTextDocument>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

/// What stands in a text edit, character for character, with line feeds between its paragraphs. The text that Qt hands
/// out has blanks for no-break spaces, and line feeds for line separators.
class TypedText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static QString of(const QQuickTextDocument* document);
};

}  // namespace larkspan::bridge
