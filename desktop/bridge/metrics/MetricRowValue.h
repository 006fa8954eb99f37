#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "monitors/MetricRow.h"

namespace larkspan::bridge {

/// `monitors::MetricRow` for QML.
struct MetricRowValue {
    Q_GADGET
    QML_VALUE_TYPE(metricRow)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(int tone MEMBER tone)

public:
    QString label{};
    QString value{};
    int tone = Tone::Blue;

    static MetricRowValue of(const monitors::MetricRow& row)
    {
        return {words(row.label), words(row.value), toneOf(row.valueColor)};
    }

    bool operator==(const MetricRowValue&) const = default;
};

}  // namespace larkspan::bridge
