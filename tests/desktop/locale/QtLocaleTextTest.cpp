#include "adapters/QtLocaleText.h"

#include <QByteArray>
#include <QDate>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <string>

namespace larkspan::adapters {

namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

support::Time momentOf(std::chrono::year_month_day date, std::chrono::minutes utc)
{
    return sys_days(date) + utc;
}

constexpr auto autumn = std::chrono::year{2026} / 11 / 20;
constexpr auto endOfSummerTime = std::chrono::year{2026} / 10 / 25;

/// The text as readers see it: the kind of a blank differs between releases of the locales' data.
std::string seen(const std::string& text)
{
    static const QRegularExpression blank("\\h");
    return QString::fromStdString(text).replace(blank, " ").toStdString();
}

/// Sets the time zone for one test.
class InTheZone {
public:
    explicit InTheZone(const char* zone) { live(zone); }
    ~InTheZone() { before_.isEmpty() ? live(nullptr) : live(before_.constData()); }

private:
    static void live(const char* zone)
    {
        if (zone)
            qputenv("TZ", zone);
        else
            qunsetenv("TZ");
        tzset();
    }

    const QByteArray before_ = qgetenv("TZ");
};

TEST(DateOfALocale, IsWrittenInItsOrderAndWordsWithoutTheDayOfTheWeek)
{
    const InTheZone zone("UTC");
    const auto moment = momentOf(autumn, 9h + 30min);
    EXPECT_EQ(QtLocaleText(QLocale("en_US")).dateOnly(moment), "November 20, 2026");
    EXPECT_EQ(QtLocaleText(QLocale("de_DE")).dateOnly(moment), "20. November 2026");
    EXPECT_EQ(QtLocaleText(QLocale("hu_HU")).dateOnly(moment), "2026. november 20.");
    EXPECT_EQ(QtLocaleText(QLocale("ko_KR")).dateOnly(moment), "2026년 11월 20일");
}

TEST(DateOfALocale, NamesNoDayOfTheWeekAndEndsInNoSeparatorAnywhere)
{
    const InTheZone zone("UTC");
    const QDate date(2026, 11, 20);
    for (const auto& locale : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const auto text = QString::fromStdString(QtLocaleText(locale).dateOnly(momentOf(autumn, 12h)));
        EXPECT_FALSE(text.contains(locale.toString(date, u"dddd"))) << locale.name().toStdString();
        EXPECT_TRUE(text.contains(locale.toString(date, u"d"))) << locale.name().toStdString();
        EXPECT_TRUE(text.contains(locale.toString(date, u"yyyy"))) << locale.name().toStdString();
        EXPECT_FALSE(text.contains(QRegularExpression("^[\\s,،-]|[\\s,،-]$"))) << locale.name().toStdString();
    }
}

TEST(TimeOfALocale, IsWrittenOnItsOwnClock)
{
    const InTheZone zone("UTC");
    const auto moment = momentOf(autumn, 21h + 5min);
    EXPECT_EQ(seen(QtLocaleText(QLocale("en_US")).timeOnly(moment)), "9:05 PM");
    EXPECT_EQ(QtLocaleText(QLocale("de_DE")).timeOnly(moment), "21:05");
}

TEST(DayAndTimeOfALocale, AreShortAndInItsOrderWordsAndClock)
{
    const InTheZone zone("UTC");
    const auto moment = momentOf(autumn, 21h + 5min);
    EXPECT_EQ(seen(QtLocaleText(QLocale("en_US")).dayAndTime(moment)), "Nov 20, 9:05 PM");
    EXPECT_EQ(seen(QtLocaleText(QLocale("en_GB")).dayAndTime(moment)), "20 Nov, 21:05");
    EXPECT_EQ(seen(QtLocaleText(QLocale("de_DE")).dayAndTime(moment)), "20. Nov., 21:05");
    EXPECT_EQ(seen(QtLocaleText(QLocale("fr_FR")).dayAndTime(moment)), "20 nov. 21:05");
    EXPECT_EQ(seen(QtLocaleText(QLocale("pt_BR")).dayAndTime(moment)), "20 de nov., 21:05");
    EXPECT_EQ(seen(QtLocaleText(QLocale("hu_HU")).dayAndTime(moment)), "nov. 20. 21:05");
    EXPECT_EQ(seen(QtLocaleText(QLocale("ja_JP")).dayAndTime(moment)), "11月20日 21:05");
    EXPECT_EQ(seen(QtLocaleText(QLocale::c()).dayAndTime(moment)), "20 Nov, 21:05");
    EXPECT_EQ(seen(QtLocaleText(QLocale("ar_EG")).dayAndTime(moment)), "٢٠ نوفمبر، ٩:٠٥ م");
}

TEST(DayAndTimeOfALocale, AreWholeAndNameNeitherYearNorDayOfTheWeekAnywhere)
{
    const InTheZone zone("UTC");
    const auto moment = momentOf(autumn, 9h + 25min);
    for (const auto& locale : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const QtLocaleText text(locale);
        const auto whole = QString::fromStdString(seen(text.dayAndTime(moment)));
        const auto time = QString::fromStdString(seen(text.timeOnly(moment))).remove(QStringLiteral(":00"));
        EXPECT_TRUE(whole.endsWith(u' ' + time)) << whole.toStdString() << ' ' << locale.name().toStdString();
        const auto day = whole.chopped(time.size());
        EXPECT_TRUE(day.contains(locale.toString(20))) << day.toStdString() << ' ' << locale.name().toStdString();
        EXPECT_FALSE(day.contains(locale.toString(26))) << day.toStdString() << ' ' << locale.name().toStdString();
        EXPECT_FALSE(day.contains(locale.toString(QDate(2026, 11, 20), u"dddd"))) << locale.name().toStdString();
    }
}

TEST(MomentInAZone, IsShownAsThatZonesClocksStandAlsoAcrossTheEndOfSummerTime)
{
    const InTheZone zone("Europe/Berlin");
    const QtLocaleText german(QLocale("de_DE"));
    EXPECT_EQ(german.timeOnly(momentOf(endOfSummerTime, 30min)), "02:30") << "two hours ahead of UTC";
    EXPECT_EQ(german.timeOnly(momentOf(endOfSummerTime, 1h + 30min)), "02:30") << "the clock was put back";
    EXPECT_EQ(german.timeOnly(momentOf(endOfSummerTime, 2h + 30min)), "03:30") << "one hour ahead";
    EXPECT_EQ(german.dateOnly(momentOf(endOfSummerTime, 22h + 59min)), "25. Oktober 2026");
    EXPECT_EQ(german.dateOnly(momentOf(endOfSummerTime, 23h)), "26. Oktober 2026");
}

TEST(MomentInAZone, FollowsADesktopThatMoves)
{
    const QtLocaleText american(QLocale("en_US"));
    const auto moment = momentOf(autumn, 2h);
    {
        const InTheZone zone("Asia/Tokyo");
        EXPECT_EQ(seen(american.dateOnly(moment) + " " + american.timeOnly(moment)), "November 20, 2026 11:00 AM");
    }
    const InTheZone zone("America/New_York");
    EXPECT_EQ(seen(american.dateOnly(moment) + " " + american.timeOnly(moment)), "November 19, 2026 9:00 PM");
}

TEST(DayOfAZone, BeginsAtItsMidnightAndIsTwentyFiveHoursLongWhenSummerTimeEnds)
{
    const InTheZone zone("Europe/Berlin");
    const QtLocaleText german(QLocale("de_DE"));
    const std::chrono::local_days day{std::chrono::year_month_day(endOfSummerTime)};
    const auto midnight = momentOf(endOfSummerTime, -2h);
    EXPECT_EQ(german.day(midnight), day);
    EXPECT_EQ(german.day(midnight - 1ms), day - std::chrono::days(1));
    EXPECT_EQ(german.day(midnight + 25h - 1ms), day);
    EXPECT_EQ(german.day(midnight + 25h), day + std::chrono::days(1));
}

TEST(DayOfAZone, OfTheEpochIsTheFirstOfJanuary1970)
{
    const InTheZone zone("UTC");
    EXPECT_EQ(QtLocaleText(QLocale("en_US")).day(support::Time{}), std::chrono::local_days{});
    EXPECT_EQ(QtLocaleText(QLocale("en_US")).day(support::Time{-1ms}), std::chrono::local_days{std::chrono::days(-1)});
}

TEST(OffsetOfAZone, FollowsSummerTimeAndSoDoesItsName)
{
    const InTheZone zone("Europe/Berlin");
    const QtLocaleText german(QLocale("de_DE"));
    const auto change = momentOf(endOfSummerTime, 1h);
    EXPECT_EQ(german.utcOffset(change - 1ms), 2h);
    EXPECT_EQ(german.zoneName(change - 1ms), "CEST");
    EXPECT_EQ(german.utcOffset(change), 1h);
    EXPECT_EQ(german.zoneName(change), "CET");
}

TEST(OffsetOfAZone, MayBePartsOfAnHourAndBehindUTC)
{
    const InTheZone zone("America/St_Johns");
    EXPECT_EQ(QtLocaleText(QLocale("en_CA")).utcOffset(momentOf(autumn, 0h)), -(3h + 30min));
}

TEST(WeekOfALocale, BeginsOnItsOwnDay)
{
    EXPECT_EQ(QtLocaleText(QLocale("de_DE")).firstDayOfWeek(), std::chrono::Monday);
    EXPECT_EQ(QtLocaleText(QLocale("en_US")).firstDayOfWeek(), std::chrono::Sunday);
    EXPECT_EQ(QtLocaleText(QLocale("ar_EG")).firstDayOfWeek(), std::chrono::Saturday);
}

TEST(WeekOfALocale, HasShortNames)
{
    EXPECT_EQ(QtLocaleText(QLocale("en_US")).weekdayName(std::chrono::Sunday), "Sun");
    EXPECT_EQ(QtLocaleText(QLocale("en_US")).weekdayName(std::chrono::Monday), "Mon");
    EXPECT_EQ(QtLocaleText(QLocale("fr_FR")).weekdayName(std::chrono::Wednesday), "mer.");
}

TEST(MonthOfALocale, StandsAloneWithItsYearInTheLocalesOrder)
{
    const auto month = std::chrono::year{2026} / std::chrono::November;
    EXPECT_EQ(QtLocaleText(QLocale("en_US")).monthAndYear(month), "November 2026");
    EXPECT_EQ(QtLocaleText(QLocale("de_DE")).monthAndYear(month), "November 2026");
    EXPECT_EQ(QtLocaleText(QLocale("ru_RU")).monthAndYear(month), "ноябрь 2026") << "not as in a date";
    EXPECT_EQ(QtLocaleText(QLocale("hu_HU")).monthAndYear(month), "2026. november");
    EXPECT_EQ(QtLocaleText(QLocale("ko_KR")).monthAndYear(month), "2026년 11월");
    EXPECT_EQ(QtLocaleText(QLocale("ja_JP")).monthAndYear(month), "2026年 11月");
}

TEST(MonthOfALocale, EndsInNoBlankAnywhere)
{
    static const QRegularExpression blankAtAnEnd("^\\h|\\h$");
    for (const auto& locale : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const auto text = QtLocaleText(locale).monthAndYear(std::chrono::year{2026} / std::chrono::November);
        EXPECT_FALSE(QString::fromStdString(text).contains(blankAtAnEnd)) << text << ' ' << locale.name().toStdString();
    }
}

TEST(ClockOfALocale, NamesTheHalvesOfTheDayOnlyWhereItHasThem)
{
    const auto american = QtLocaleText(QLocale("en_US")).dayHalves();
    ASSERT_TRUE(american.has_value());
    EXPECT_EQ(american->beforeNoon + " " + american->afterNoon, "AM PM");
    EXPECT_FALSE(QtLocaleText(QLocale("de_DE")).dayHalves().has_value());
    EXPECT_FALSE(QtLocaleText(QLocale("fr_CA")).dayHalves().has_value());
}

TEST(OrderOfNames, IgnoresCaseAndIsTheLocales)
{
    const QtLocaleText german(QLocale("de_DE"));
    EXPECT_EQ(german.compareIgnoringCase("api", "API"), std::weak_ordering::equivalent);
    EXPECT_EQ(german.compareIgnoringCase("apple", "Banana"), std::weak_ordering::less);
    EXPECT_EQ(german.compareIgnoringCase("Zebra", "apple"), std::weak_ordering::greater);
    EXPECT_EQ(german.compareIgnoringCase("Äpfel", "Birnen"), std::weak_ordering::less);
    EXPECT_EQ(german.compareIgnoringCase("ÄPFEL", "äpfel"), std::weak_ordering::equivalent);
    EXPECT_EQ(german.compareIgnoringCase("Äpfel", "Zebra"), std::weak_ordering::less);
    EXPECT_EQ(QtLocaleText(QLocale("sv_SE")).compareIgnoringCase("Äpfel", "Zebra"), std::weak_ordering::greater)
        << "Swedish has that letter behind z";
}

}  // namespace

}  // namespace larkspan::adapters
