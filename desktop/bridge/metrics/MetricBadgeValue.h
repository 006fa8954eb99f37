#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "monitors/MetricBadge.h"

namespace larkspan::bridge {

/// `monitors::MetricBadge` for QML.
struct MetricBadgeValue {
    Q_GADGET
    QML_VALUE_TYPE(metricBadge)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(bool isTrend MEMBER isTrend)

public:
    QString icon{};
    QString value{};
    QString label{};
    int tone = Tone::Blue;
    bool isTrend = false;

    static MetricBadgeValue of(const monitors::MetricBadge& badge)
    {
        return {words(badge.icon), words(badge.value), words(badge.label), toneOf(badge.color), badge.isTrend};
    }

    bool operator==(const MetricBadgeValue&) const = default;
};

}  // namespace larkspan::bridge
