#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/lists/ValueList.h"
#include "bridge/metrics/MetricBadgeValue.h"
#include "bridge/values/ActionButtonValue.h"
#include "bridge/values/PillValue.h"
#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "monitors/MonitorRow.h"

namespace larkspan::bridge {

/// `monitors::MonitorRow` for QML.
struct MonitorRowValue {
    Q_GADGET
    QML_VALUE_TYPE(monitorRow)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString statusIcon MEMBER statusIcon)
    Q_PROPERTY(QString status MEMBER status)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(larkspan::bridge::PillValue type MEMBER type)
    Q_PROPERTY(bool isOpen MEMBER isOpen)
    Q_PROPERTY(bool isLoading MEMBER isLoading)
    Q_PROPERTY(QString disclosure MEMBER disclosure)
    Q_PROPERTY(QList<larkspan::bridge::MetricBadgeValue> badges MEMBER badges)
    Q_PROPERTY(QList<larkspan::bridge::ActionButtonValue> buttons MEMBER buttons)
    Q_PROPERTY(bool isBusy MEMBER isBusy)

public:
    using Row = monitors::MonitorRow;

    QString id{};
    QString title{};
    QString statusIcon{};
    QString status{};
    int tone = Tone::Gray;
    PillValue type{};
    bool isOpen = false;
    bool isLoading = false;
    QString disclosure{};
    QList<MetricBadgeValue> badges{};
    QList<ActionButtonValue> buttons{};
    bool isBusy = false;

    static MonitorRowValue of(const Row& row)
    {
        return {wholeText(row.id), words(row.title), words(row.statusIcon), words(row.status), toneOf(row.tone),
            PillValue::of(row.type), row.isOpen, row.isLoading, words(row.disclosure),
            valuesOf<MetricBadgeValue>(row.badges), valuesOf<ActionButtonValue>(row.buttons), row.isBusy};
    }

    bool operator==(const MonitorRowValue&) const = default;
};

}  // namespace larkspan::bridge
