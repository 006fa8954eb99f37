#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/menu/MenuEntry.h"
#include "bridge/values/ToneNames.h"

namespace larkspan::bridge {

/// A row of the menu for QML.
struct MenuRowValue {
    Q_GADGET
    QML_VALUE_TYPE(menuRow)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(bool isSeparator MEMBER isSeparator)
    Q_PROPERTY(bool isCommand MEMBER isCommand)
    Q_PROPERTY(bool hasDot MEMBER hasDot)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(QString help MEMBER help)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(bool isStatus MEMBER isStatus)
    Q_PROPERTY(bool isHeading MEMBER isHeading)
    Q_PROPERTY(bool isText MEMBER isText)
    Q_PROPERTY(QString ending MEMBER ending)

public:
    using Row = MenuEntry;

    QString title{};
    bool isSeparator = false;
    bool isCommand = false;
    bool hasDot = false;
    int tone = Tone::Gray;
    QString help{};
    QString symbol{};
    bool isStatus = false;
    bool isHeading = false;
    bool isText = false;
    /// The key that triggers the row, or the word of its status.
    QString ending{};

    static MenuRowValue of(const MenuEntry& entry);

    bool operator==(const MenuRowValue&) const = default;
};

}  // namespace larkspan::bridge
