#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/messages/MarkdownTextValue.h"
#include "bridge/messages/MessageEntry.h"

namespace larkspan::bridge {

/// A row of a message for QML.
struct MarkdownRowValue {
    Q_GADGET
    QML_VALUE_TYPE(markdownRow)
    Q_PROPERTY(bool isTitle MEMBER isTitle)
    Q_PROPERTY(bool isHeading MEMBER isHeading)
    Q_PROPERTY(bool isQuote MEMBER isQuote)
    Q_PROPERTY(bool isItem MEMBER isItem)
    /// Also for the divider of a table.
    Q_PROPERTY(bool isTable MEMBER isTable)
    Q_PROPERTY(bool isTableHeader MEMBER isTableHeader)
    Q_PROPERTY(bool isDivider MEMBER isDivider)
    Q_PROPERTY(bool continuesPrevious MEMBER continuesPrevious)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(larkspan::bridge::MarkdownTextValue text MEMBER text)
    Q_PROPERTY(QList<larkspan::bridge::MarkdownTextValue> cells MEMBER cells)
    /// For a table's rows: the index of the table in the message.
    Q_PROPERTY(int table MEMBER table)
    /// The number of columns of the table.
    Q_PROPERTY(int columns MEMBER columns)
    Q_PROPERTY(int gap MEMBER gap)

public:
    using Row = MessageEntry;

    bool isTitle = false;
    bool isHeading = false;
    bool isQuote = false;
    bool isItem = false;
    bool isTable = false;
    bool isTableHeader = false;
    bool isDivider = false;
    bool continuesPrevious = false;
    QString label{};
    MarkdownTextValue text{};
    QList<MarkdownTextValue> cells{};
    int table = 0;
    int columns = 0;
    int gap = 0;

    static MarkdownRowValue of(const MessageEntry& entry);

    bool operator==(const MarkdownRowValue&) const = default;
};

}  // namespace larkspan::bridge
