#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "monitors/RegionRow.h"

namespace larkspan::bridge {

/// `monitors::RegionRow` for QML.
struct RegionRowValue {
    Q_GADGET
    QML_VALUE_TYPE(regionRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString average MEMBER average)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(QString state MEMBER state)

public:
    QString name{};
    QString average{};
    int tone = Tone::Gray;
    QString state{};

    static RegionRowValue of(const monitors::RegionRow& row)
    {
        return {words(row.name), words(row.average), toneOf(row.tone), words(row.state)};
    }

    bool operator==(const RegionRowValue&) const = default;
};

}  // namespace larkspan::bridge
