#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/Words.h"
#include "presentation/time/CalendarDay.h"

namespace larkspan::bridge {

/// `presentation::CalendarDay` for QML.
struct CalendarDayValue {
    Q_GADGET
    QML_VALUE_TYPE(calendarDay)
    Q_PROPERTY(int id MEMBER id)
    Q_PROPERTY(QString number MEMBER number)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(bool isInMonth MEMBER isInMonth)
    Q_PROPERTY(bool isToday MEMBER isToday)
    Q_PROPERTY(bool isChosen MEMBER isChosen)

public:
    int id = 0;
    QString number{};
    QString name{};
    bool isInMonth = false;
    bool isToday = false;
    bool isChosen = false;

    static CalendarDayValue of(const presentation::CalendarDay& day)
    {
        return {day.id, words(day.number), words(day.name), day.isInMonth, day.isToday, day.isChosen};
    }

    bool operator==(const CalendarDayValue&) const = default;
};

}  // namespace larkspan::bridge
