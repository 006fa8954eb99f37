#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/PillValue.h"
#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "incidents/IncidentRow.h"

namespace larkspan::bridge {

/// `incidents::IncidentRow` for QML.
struct IncidentRowValue {
    Q_GADGET
    QML_VALUE_TYPE(incidentRow)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(bool hasSeverity MEMBER hasSeverity)
    Q_PROPERTY(larkspan::bridge::PillValue severity MEMBER severity)
    Q_PROPERTY(QString date MEMBER date)
    Q_PROPERTY(larkspan::bridge::PillValue status MEMBER status)

public:
    using Row = incidents::IncidentRow;

    QString id{};
    QString title{};
    int tone = Tone::Gray;
    /// A severity may be present with an empty text.
    bool hasSeverity = false;
    PillValue severity{};
    QString date{};
    PillValue status{};

    static IncidentRowValue of(const Row& row)
    {
        return {wholeText(row.id), words(row.title), toneOf(row.tone), row.severity.has_value(),
            row.severity ? PillValue::of(*row.severity) : PillValue(), words(row.date), PillValue::of(row.status)};
    }

    bool operator==(const IncidentRowValue&) const = default;
};

}  // namespace larkspan::bridge
