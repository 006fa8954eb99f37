#pragma once

#include <QCollator>
#include <QDate>
#include <QLocale>
#include <QString>

#include <chrono>
#include <map>
#include <string>

#include "platform/LocaleText.h"

namespace larkspan::adapters {

/// Texts in the given locale, by default the desktop's, and in the desktop's time zone at the time of the call; of
/// dates alone, in its zone a moment ago.
class QtLocaleText final : public platform::LocaleText {
public:
    explicit QtLocaleText(const QLocale& locale = QLocale::system());

    std::string dateOnly(support::Time moment) const override;
    std::string timeOnly(support::Time moment) const override;
    std::string dayAndTime(support::Time moment) const override;
    std::chrono::seconds utcOffset(support::Time moment) const override;
    std::string zoneName(support::Time moment) const override;
    std::chrono::weekday firstDayOfWeek() const override;
    std::string weekdayName(std::chrono::weekday day) const override;
    std::string monthAndYear(std::chrono::year_month month) const override;
    std::optional<DayHalves> dayHalves() const override;
    std::weak_ordering compareIgnoringCase(std::string_view left, std::string_view right) const override;

private:
    QDate dayInTheZone(support::Time moment) const;

    const QLocale locale_;
    const QString dateFormat_;
    const QString dayAndTimeFormat_;
    QCollator collator_;
    /// The texts of the last dates; records of one list have many in common.
    mutable std::map<QDate, std::string> dates_;
    mutable std::chrono::steady_clock::time_point nextLookForTheZone_;
};

}  // namespace larkspan::adapters
