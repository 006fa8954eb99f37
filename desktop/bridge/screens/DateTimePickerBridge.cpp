#include "bridge/screens/DateTimePickerBridge.h"

#include <utility>

#include "bridge/lists/ValueList.h"
#include "presentation/time/ClockFace.h"

namespace larkspan::bridge {

DateTimePickerBridge::DateTimePickerBridge(
    std::shared_ptr<presentation::DateTimePicker> picker, const ScreenUpdates& updates, QObject* parent)
    : ScreenBridge(updates, parent)
    , picker_(std::move(picker))
{
    followChangesOf(*picker_);
    DateTimePickerBridge::readState();
}

QList<QString> DateTimePickerBridge::weekdays() const
{
    QList<QString> names;
    for (const auto& name : picker_->weekdays()) names << words(name);
    return names;
}

bool DateTimePickerBridge::typeHour(const QString& digits)
{
    const auto typed = digits.toStdString();
    picker_->typeHour(typed);
    return presentation::isWholeHour(typed);
}

bool DateTimePickerBridge::typeMinute(const QString& digits)
{
    const auto typed = digits.toStdString();
    picker_->typeMinute(typed);
    return presentation::isWholeMinute(typed);
}

void DateTimePickerBridge::readState()
{
    days_ = valuesOf<CalendarDayValue>(picker_->days());
}

}  // namespace larkspan::bridge
