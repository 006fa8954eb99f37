#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/PillValue.h"
#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "workspace/StatusPageRow.h"

namespace larkspan::bridge {

/// `workspace::StatusPageRow` for QML.
struct StatusPageRowValue {
    Q_GADGET
    QML_VALUE_TYPE(statusPageRow)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(larkspan::bridge::PillValue status MEMBER status)

public:
    using Row = workspace::StatusPageRow;

    QString id{};
    QString title{};
    QString symbol{};
    int tone = Tone::Gray;
    PillValue status{};

    static StatusPageRowValue of(const Row& row)
    {
        return {wholeText(row.id), words(row.title), words(row.symbol), toneOf(row.tone), PillValue::of(row.status)};
    }

    bool operator==(const StatusPageRowValue&) const = default;
};

}  // namespace larkspan::bridge
