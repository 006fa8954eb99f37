#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "adapters/MainExecutor.h"
#include "adapters/QtLocaleText.h"
#include "bridge/lists/RowListModel.h"
#include "bridge/metrics/MetricBadgeValue.h"
#include "bridge/screens/DateTimePickerBridge.h"
#include "bridge/values/ActionButtonValue.h"
#include "bridge/values/AlertValue.h"
#include "bridge/values/CalendarDayValue.h"
#include "bridge/values/ChoiceValue.h"
#include "bridge/values/ConfirmationValue.h"
#include "bridge/values/FactValue.h"
#include "bridge/values/LinkValue.h"
#include "bridge/values/MarkerValue.h"
#include "bridge/values/PillValue.h"
#include "bridge/values/PlaceholderValue.h"
#include "bridge/values/TimelineRowValue.h"
#include "bridge/workspace/StatusPageRowValue.h"

namespace larkspan::gallery {

/// The values that the specimens on the sheet of the kit show; QML itself cannot make them.
class KitSamples : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the sheet")
    Q_PROPERTY(larkspan::bridge::DateTimePickerBridge* picker READ picker CONSTANT)
    Q_PROPERTY(larkspan::bridge::ListModel* pages READ pages CONSTANT)
    Q_PROPERTY(QList<larkspan::bridge::PillValue> pills READ pills CONSTANT)
    Q_PROPERTY(QList<larkspan::bridge::TimelineRowValue> timeline READ timeline CONSTANT)

public:
    explicit KitSamples(adapters::MainExecutor& main);

    Q_INVOKABLE larkspan::bridge::ActionButtonValue actionButton(
        const QString& label, const QString& symbol, int tone, bool isProminent) const;
    Q_INVOKABLE larkspan::bridge::AlertValue alert(const QString& text) const;
    Q_INVOKABLE QList<larkspan::bridge::ChoiceValue> choices(const QStringList& names) const;
    Q_INVOKABLE larkspan::bridge::ConfirmationValue confirmation(
        const QString& title, const QString& text, const QString& confirm, const QString& cancel) const;
    Q_INVOKABLE larkspan::bridge::CalendarDayValue day(int number, bool isChosen, bool isToday, bool isInMonth) const;
    Q_INVOKABLE larkspan::bridge::FactValue fact(const QString& label, const QString& text, bool isLink) const;
    Q_INVOKABLE larkspan::bridge::LinkValue link(
        const QString& symbol, const QString& title, const QString& subtitle) const;
    Q_INVOKABLE larkspan::bridge::MarkerValue marker(
        const QString& symbol, const QString& text, int tone, bool showsProgress) const;
    Q_INVOKABLE larkspan::bridge::MetricBadgeValue metricBadge(
        const QString& icon, const QString& value, const QString& label, int tone, bool isTrend) const;
    Q_INVOKABLE larkspan::bridge::PillValue pill(const QString& text, int tone, const QString& symbol = {}) const;
    Q_INVOKABLE larkspan::bridge::PlaceholderValue placeholder(
        const QString& symbol, const QString& title, const QString& text, bool showsProgress, bool offersRetry) const;

    bridge::DateTimePickerBridge* picker() { return picker_.get(); }
    bridge::ListModel* pages() { return &pages_; }
    QList<bridge::PillValue> pills() const;
    QList<bridge::TimelineRowValue> timeline() const;

private:
    /// The sheet is the same on every day.
    struct StoppedClock final : platform::Clock {
        support::Time now() const override;
    };

    StoppedClock clock_;
    adapters::QtLocaleText locale_;
    support::ScreenUpdates updates_;
    std::unique_ptr<bridge::DateTimePickerBridge> picker_;
    bridge::RowListModel<bridge::StatusPageRowValue> pages_;
};

}  // namespace larkspan::gallery
