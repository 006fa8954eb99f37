#include "adapters/QtLocaleText.h"

#include <QDateTime>
#include <QRegularExpression>

#include <ctime>

namespace larkspan::adapters {

namespace {

// Locales separate words by many kinds of blanks; \s matches the plain ones only, \h the others.

// Qt's long format contains the day of the week; the short one may leave open which number is the month.
QString withoutWeekday(QString format)
{
    static const QRegularExpression weekday(QStringLiteral("d{3,4}[\\s\\h,،፣⹁]*"));
    static const QRegularExpression separatorAtTheEnd(QStringLiteral("[\\s\\h,،-]+$"));
    return format.remove(weekday).remove(separatorAtTheEnd).trimmed();
}

// The part of a date's format from the first to the last of day and month, with the text that directly follows them;
// the month is abbreviated.
QString dayAndMonth(const QString& dateFormat)
{
    static const QRegularExpression piece(QStringLiteral("'[^']*'|d{1,2}|M+|."));
    static const QRegularExpression apart(QStringLiteral("^[\\s\\h,،፣⹁'(y]"));
    QString format;
    qsizetype end = 0;
    bool isRightBehind = false;
    for (auto pieces = piece.globalMatch(dateFormat); pieces.hasNext();) {
        const auto text = pieces.next().captured();
        const bool isField = text.startsWith(u'd') || text.startsWith(u'M');
        if (format.isEmpty() && !isField) continue;
        isRightBehind = isField || (isRightBehind && !apart.match(text).hasMatch());
        format += text;
        if (isRightBehind) end = format.size();
    }
    return format.left(end).replace(QStringLiteral("MMMM"), QStringLiteral("MMM"));
}

// The separator between a date and a time of day is the locale's separator between a day of the week and a date.
QString separatorOf(const QString& longFormat)
{
    static const QRegularExpression behindWeekday(QStringLiteral("^d{3,4}([,،፣⹁]?)[\\s\\h]"));
    return behindWeekday.match(longFormat).captured(1) + u' ';
}

QDateTime inTheZone(support::Time moment)
{
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count());
}

// Some scripts write a word after the number of the year; the locale's date format contains it.
QString yearText(const QString& dateFormat, int year)
{
    static const QRegularExpression yearAndWord(QStringLiteral("y+([^\\s\\h\\w',/-]|[년年])?"));
    return QString::number(year) + yearAndWord.match(dateFormat).captured(1);
}

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace

QtLocaleText::QtLocaleText(const QLocale& locale)
    : locale_(locale)
    , dateFormat_(withoutWeekday(locale.dateFormat(QLocale::LongFormat)))
    , dayAndTimeFormat_(dayAndMonth(dateFormat_) + separatorOf(locale.dateFormat(QLocale::LongFormat))
          + locale.timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss")))
    , collator_(locale.collation())
{
    collator_.setCaseSensitivity(Qt::CaseInsensitive);
}

std::string QtLocaleText::dateOnly(support::Time moment) const
{
    constexpr std::size_t mostRemembered = 5'000;

    const auto day = dayInTheZone(moment);
    const auto known = dates_.find(day);
    if (known != dates_.end()) return known->second;
    if (dates_.size() == mostRemembered) dates_.clear();
    return dates_[day] = locale_.toString(day, dateFormat_).toStdString();
}

QDate QtLocaleText::dayInTheZone(support::Time moment) const
{
    constexpr std::chrono::milliseconds between{50};

    // Looking for a change of the zone asks for the state of a file, which takes most of the time for the dates of a
    // long list.
    const auto now = std::chrono::steady_clock::now();
    if (now >= nextLookForTheZone_) {
        ::tzset();
        nextLookForTheZone_ = now + between;
    }
    const std::time_t seconds = std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch().count();
    std::tm local{};
    if (!::localtime_r(&seconds, &local)) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

std::string QtLocaleText::timeOnly(support::Time moment) const
{
    return locale_.toString(inTheZone(moment).time(), QLocale::ShortFormat).toStdString();
}

std::string QtLocaleText::dayAndTime(support::Time moment) const
{
    return locale_.toString(inTheZone(moment), dayAndTimeFormat_).toStdString();
}

std::chrono::seconds QtLocaleText::utcOffset(support::Time moment) const
{
    return std::chrono::seconds(inTheZone(moment).offsetFromUtc());
}

std::string QtLocaleText::zoneName(support::Time moment) const
{
    return inTheZone(moment).timeZoneAbbreviation().toStdString();
}

std::chrono::weekday QtLocaleText::firstDayOfWeek() const
{
    return std::chrono::weekday(static_cast<unsigned>(locale_.firstDayOfWeek()));
}

std::string QtLocaleText::weekdayName(std::chrono::weekday day) const
{
    return locale_.standaloneDayName(static_cast<int>(day.iso_encoding()), QLocale::ShortFormat).toStdString();
}

std::string QtLocaleText::monthAndYear(std::chrono::year_month month) const
{
    const auto name = locale_.standaloneMonthName(static_cast<int>(static_cast<unsigned>(month.month())));
    const auto year = yearText(dateFormat_, static_cast<int>(month.year()));
    const bool isYearFirst = dateFormat_.indexOf(u'y') < dateFormat_.indexOf(u'M');
    return (isYearFirst ? year + u' ' + name : name + u' ' + year).toStdString();
}

std::optional<platform::LocaleText::DayHalves> QtLocaleText::dayHalves() const
{
    if (!locale_.timeFormat(QLocale::ShortFormat).contains(u'a', Qt::CaseInsensitive)) return std::nullopt;
    return DayHalves{locale_.amText().toStdString(), locale_.pmText().toStdString()};
}

std::weak_ordering QtLocaleText::compareIgnoringCase(std::string_view left, std::string_view right) const
{
    return collator_.compare(text(left), text(right)) <=> 0;
}

}  // namespace larkspan::adapters
