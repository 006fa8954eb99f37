#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/Words.h"
#include "messages/markdown/MarkdownText.h"

namespace larkspan::bridge {

/// `messages::MarkdownText` for QML; without the destinations of its links.
struct MarkdownTextValue {
    Q_GADGET
    QML_VALUE_TYPE(markdownText)
    Q_PROPERTY(QString styled MEMBER styled)
    Q_PROPERTY(QString plain MEMBER plain)
    Q_PROPERTY(int linkCount MEMBER linkCount)

public:
    QString styled{};
    QString plain{};
    int linkCount = 0;

    static MarkdownTextValue of(const messages::MarkdownText& text)
    {
        return {wholeText(text.styled), words(text.plain), static_cast<int>(text.links.size())};
    }

    bool operator==(const MarkdownTextValue&) const = default;
};

}  // namespace larkspan::bridge
