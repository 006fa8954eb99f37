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

public:
    QString name{};
    QString average{};
    int tone = Tone::Gray;

    static RegionRowValue of(const monitors::RegionRow& row)
    {
        return {words(row.name), words(row.average), toneOf(row.tone)};
    }

    bool operator==(const RegionRowValue&) const = default;
};

}  // namespace larkspan::bridge
