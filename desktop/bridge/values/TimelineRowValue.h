#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/Words.h"
#include "presentation/shapes/TimelineRow.h"

namespace larkspan::bridge {

/// `presentation::TimelineRow` for QML.
struct TimelineRowValue {
    Q_GADGET
    QML_VALUE_TYPE(timelineRow)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString date MEMBER date)
    Q_PROPERTY(QString time MEMBER time)

public:
    QString symbol{};
    QString label{};
    QString date{};
    QString time{};

    static TimelineRowValue of(const presentation::TimelineRow& row)
    {
        return {words(row.symbol), words(row.label), words(row.date), words(row.time)};
    }

    bool operator==(const TimelineRowValue&) const = default;
};

}  // namespace larkspan::bridge
