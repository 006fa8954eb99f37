#pragma once

#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <memory>

#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/CalendarDayValue.h"
#include "bridge/values/Words.h"
#include "presentation/time/ClockFace.h"
#include "presentation/time/DateTimePicker.h"

namespace larkspan::bridge {

/// The choice of a moment for QML; texts and decisions are those of `presentation::DateTimePicker`.
class DateTimePickerBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString date READ date NOTIFY changed)
    Q_PROPERTY(QString zone READ zone NOTIFY changed)
    Q_PROPERTY(QString month READ month NOTIFY changed)
    Q_PROPERTY(QList<QString> weekdays READ weekdays CONSTANT)
    Q_PROPERTY(QList<larkspan::bridge::CalendarDayValue> days MEMBER days_ NOTIFY changed)
    Q_PROPERTY(QString hour READ hour NOTIFY changed)
    Q_PROPERTY(QString minute READ minute NOTIFY changed)
    Q_PROPERTY(QString dayHalf READ dayHalf NOTIFY changed)
    Q_PROPERTY(QString hourPattern READ hourPattern CONSTANT)
    Q_PROPERTY(QString minutePattern READ minutePattern CONSTANT)

public:
    DateTimePickerBridge(
        std::shared_ptr<presentation::DateTimePicker> picker, const ScreenUpdates& updates, QObject* parent = nullptr);

    QString date() const { return words(picker_->date()); }
    QString zone() const { return words(picker_->zone()); }
    QString month() const { return words(picker_->month()); }
    QList<QString> weekdays() const;
    QString hour() const { return words(picker_->hour()); }
    QString minute() const { return words(picker_->minute()); }
    QString dayHalf() const { return words(picker_->dayHalf()); }
    QString hourPattern() const { return words(presentation::hourPattern); }
    QString minutePattern() const { return words(presentation::minutePattern); }

    Q_INVOKABLE void browseMonths(int count) { picker_->browseMonths(count); }
    Q_INVOKABLE void chooseDay(int id) { picker_->chooseDay(id); }
    Q_INVOKABLE void moveDays(int count) { picker_->moveDays(count); }
    Q_INVOKABLE void moveMonths(int count) { picker_->moveMonths(count); }
    Q_INVOKABLE void moveToBeginOfWeek() { picker_->moveToBeginOfWeek(); }
    Q_INVOKABLE void moveToEndOfWeek() { picker_->moveToEndOfWeek(); }
    /// Returns true if no further digit can follow.
    Q_INVOKABLE bool typeHour(const QString& digits);
    Q_INVOKABLE bool typeMinute(const QString& digits);
    Q_INVOKABLE void moveHours(int count) { picker_->moveTime(std::chrono::hours(count)); }
    Q_INVOKABLE void moveMinutes(int count) { picker_->moveTime(std::chrono::minutes(count)); }
    Q_INVOKABLE void switchDayHalf() { picker_->switchDayHalf(); }

private:
    void readState() override;

    std::shared_ptr<presentation::DateTimePicker> picker_;
    QList<CalendarDayValue> days_;
};

}  // namespace larkspan::bridge
