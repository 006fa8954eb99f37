#include "gallery/KitSamples.h"

#include <chrono>
#include <string>
#include <utility>

namespace larkspan::gallery {

using namespace std::chrono_literals;

namespace {

workspace::StatusPageRow page(std::string name, model::StatusPageStatus status)
{
    model::StatusPage made;
    made.id = name;
    made.name = std::move(name);
    made.status = status;
    return workspace::StatusPageRow::of(made);
}

}  // namespace

support::Time KitSamples::StoppedClock::now() const
{
    return std::chrono::sys_days(2026y / std::chrono::November / 20) + 9h;
}

KitSamples::KitSamples(adapters::MainExecutor& main)
    : updates_(main)
{
    using enum model::StatusPageStatus;
    const presentation::DateTimePicker::Ports ports{clock_, locale_};
    picker_ = std::make_unique<bridge::DateTimePickerBridge>(
        std::make_shared<presentation::DateTimePicker>(ports, clock_.now() + 72h), updates_);
    pages_.update({page("Acme Cloud", operational), page("Beta Payments", down), page("Echo Search", degraded),
        page("Gamma Mail", maintenance), page("Delta Internal Tools", unknown)});
}

bridge::ActionButtonValue KitSamples::actionButton(
    const QString& label, const QString& symbol, int tone, bool isProminent) const
{
    bridge::ActionButtonValue made;
    made.label = label;
    made.symbol = symbol;
    made.tone = tone;
    made.isProminent = isProminent;
    made.isEnabled = true;
    return made;
}

bridge::AlertValue KitSamples::alert(const QString& text) const
{
    bridge::AlertValue made;
    made.number = 1;
    made.text = text;
    return made;
}

QList<bridge::ChoiceValue> KitSamples::choices(const QStringList& names) const
{
    QList<bridge::ChoiceValue> made;
    for (const auto& name : names) {
        bridge::ChoiceValue choice;
        choice.id = QString::number(made.size());
        choice.name = name;
        made.append(choice);
    }
    return made;
}

bridge::ConfirmationValue KitSamples::confirmation(
    const QString& title, const QString& text, const QString& confirm, const QString& cancel) const
{
    bridge::ConfirmationValue made;
    made.title = title;
    made.text = text;
    made.confirm = confirm;
    made.cancel = cancel;
    return made;
}

bridge::CalendarDayValue KitSamples::day(int number, bool isChosen, bool isToday, bool isInMonth) const
{
    bridge::CalendarDayValue made;
    made.number = QString::number(number);
    made.isChosen = isChosen;
    made.isToday = isToday;
    made.isInMonth = isInMonth;
    return made;
}

bridge::FactValue KitSamples::fact(const QString& label, const QString& text, bool isLink) const
{
    bridge::FactValue made;
    made.label = label;
    made.text = text;
    made.isLink = isLink;
    made.tone = bridge::Tone::Primary;
    return made;
}

bridge::LinkValue KitSamples::link(const QString& symbol, const QString& title, const QString& subtitle) const
{
    bridge::LinkValue made;
    made.symbol = symbol;
    made.title = title;
    made.subtitle = subtitle;
    return made;
}

bridge::MarkerValue KitSamples::marker(const QString& symbol, const QString& text, int tone, bool showsProgress) const
{
    bridge::MarkerValue made;
    made.symbol = symbol;
    made.symbolTone = tone;
    made.text = text;
    made.tone = tone;
    made.showsProgress = showsProgress;
    return made;
}

bridge::MetricBadgeValue KitSamples::metricBadge(
    const QString& icon, const QString& value, const QString& label, int tone, bool isTrend) const
{
    bridge::MetricBadgeValue made;
    made.icon = icon;
    made.value = value;
    made.label = label;
    made.tone = tone;
    made.isTrend = isTrend;
    return made;
}

bridge::PillValue KitSamples::pill(const QString& text, int tone, const QString& symbol) const
{
    bridge::PillValue made;
    made.text = text;
    made.tone = tone;
    made.symbol = symbol;
    return made;
}

bridge::PlaceholderValue KitSamples::placeholder(
    const QString& symbol, const QString& title, const QString& text, bool showsProgress, bool offersRetry) const
{
    bridge::PlaceholderValue made;
    made.symbol = symbol;
    made.title = title;
    made.text = text;
    made.showsProgress = showsProgress;
    made.offersRetry = offersRetry;
    return made;
}

QList<bridge::PillValue> KitSamples::pills() const
{
    return {
        pill(QStringLiteral("In Progress"), bridge::Tone::Yellow), pill(QStringLiteral("Europe"), bridge::Tone::Gray)};
}

QList<bridge::TimelineRowValue> KitSamples::timeline() const
{
    const auto at = [this](const char* symbol, const char* label, std::chrono::minutes later) {
        return bridge::TimelineRowValue::of(presentation::timelineRow(symbol, label, clock_.now() + later, locale_));
    };
    return {at("plus.circle", "Created", 0min), at("eye", "Acknowledged", 12min),
        at("checkmark.circle", "Resolved", 90min)};
}

}  // namespace larkspan::gallery
