#include "model/json/ISO8601.h"

#include <gtest/gtest.h>

#include <random>

namespace larkspan::model {

namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

support::Time at(year_month_day date, milliseconds timeOfDay)
{
    return sys_days{date} + timeOfDay;
}

struct ReadableRow {
    std::string text;
    support::Time time;
};

void PrintTo(const ReadableRow& row, std::ostream* out)
{
    *out << row.text;
}

class ReadableDate : public testing::TestWithParam<ReadableRow> {};

TEST_P(ReadableDate, IsReadToTheMillisecond)
{
    EXPECT_EQ(readISO8601(GetParam().text), GetParam().time);
}

INSTANTIATE_TEST_SUITE_P(WithoutFraction, ReadableDate,
    testing::Values(ReadableRow{"2026-03-01T09:30:00Z", at(2026y / 3 / 1, 9h + 30min)},
        ReadableRow{"1970-01-01T00:00:00Z", at(1970y / 1 / 1, 0h)},
        ReadableRow{"0000-01-01T00:00:00Z", at(0y / 1 / 1, 0h)},
        ReadableRow{"9999-12-31T23:59:59Z", at(9999y / 12 / 31, 23h + 59min + 59s)},
        ReadableRow{"2024-02-29T12:00:00Z", at(2024y / 2 / 29, 12h)},
        ReadableRow{"2000-02-29T12:00:00Z", at(2000y / 2 / 29, 12h)}));

INSTANTIATE_TEST_SUITE_P(WithAnOffset, ReadableDate,
    testing::Values(ReadableRow{"2026-03-01T09:30:00+02:00", at(2026y / 3 / 1, 7h + 30min)},
        ReadableRow{"2026-03-01T00:30:00+05:45", at(2026y / 2 / 28, 18h + 45min)},
        ReadableRow{"2026-02-28T23:30:00-00:30", at(2026y / 3 / 1, 0h)},
        ReadableRow{"2026-03-01T09:30:00-00:00", at(2026y / 3 / 1, 9h + 30min)},
        ReadableRow{"2026-03-01T09:30:00.5+23:59", at(2026y / 2 / 28, 9h + 31min + 500ms)}));

INSTANTIATE_TEST_SUITE_P(WithAFractionOfAnyLengthCutToMilliseconds, ReadableDate,
    testing::Values(ReadableRow{"2026-03-01T09:30:00.123Z", at(2026y / 3 / 1, 9h + 30min + 123ms)},
        ReadableRow{"2026-03-01T09:30:00.1Z", at(2026y / 3 / 1, 9h + 30min + 100ms)},
        ReadableRow{"2026-03-01T09:30:00.05Z", at(2026y / 3 / 1, 9h + 30min + 50ms)},
        ReadableRow{"2026-03-01T09:30:00.0009Z", at(2026y / 3 / 1, 9h + 30min)},
        ReadableRow{"2026-03-01T09:30:00.123456789Z", at(2026y / 3 / 1, 9h + 30min + 123ms)},
        ReadableRow{"2026-03-01T09:30:00." + std::string(10'000, '9') + "Z", at(2026y / 3 / 1, 9h + 30min + 999ms)},
        ReadableRow{"1969-12-31T23:59:59.9999Z", at(1969y / 12 / 31, 23h + 59min + 59s + 999ms)}));

class UnreadableDate : public testing::TestWithParam<std::string> {};

TEST_P(UnreadableDate, IsAbsent)
{
    EXPECT_EQ(readISO8601(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(OfAnotherForm, UnreadableDate,
    testing::Values("", "n/a", "2026-03-01", "2026-03-01T09:30Z", "2026-03-01T09:30:00", "2026-03-01 09:30:00Z",
        "2026-03-01t09:30:00Z", "2026-03-01T09:30:00z", "20260301T093000Z", "2026-3-1T09:30:00Z", "2026-03-01T9:30:00Z",
        "26-03-01T09:30:00Z", "12026-03-01T09:30:00Z", "-026-03-01T09:30:00Z", "+2026-03-01T09:30:00Z",
        " 2026-03-01T09:30:00Z", "2026-03-01T09:30:00Z ", "2026-03-01T09:30:00Z\n", "2026-03-01T09:30:00ZZ",
        "2026/03/01T09:30:00Z", "2026-03/01T09:30:00Z", "2026-03-01T09-30:00Z", "2026-03-01T09:30-00Z",
        "2026-W09-7T09:30:00Z", "２026-03-01T09:30:00Z", std::string("2026-03-01T09:30:00Z\0", 21)));

INSTANTIATE_TEST_SUITE_P(WithAMalformedFraction, UnreadableDate,
    testing::Values("2026-03-01T09:30:00.Z", "2026-03-01T09:30:00,123Z", "2026-03-01T09:30:00.12aZ",
        "2026-03-01T09:30:00.123", "2026-03-01T09:30:00.1.2Z", "2026-03-01T09:30:00.-1Z"));

INSTANTIATE_TEST_SUITE_P(WithAMalformedOffset, UnreadableDate,
    testing::Values("2026-03-01T09:30:00+0200", "2026-03-01T09:30:00+02", "2026-03-01T09:30:00+2:00",
        "2026-03-01T09:30:00+02:0", "2026-03-01T09:30:00+02:000", "2026-03-01T09:30:00+24:00",
        "2026-03-01T09:30:00-02:60", "2026-03-01T09:30:00-", "2026-03-01T09:30:00UTC", "2026-03-01T09:30:00Z+02:00"));

INSTANTIATE_TEST_SUITE_P(OutOfRange, UnreadableDate,
    testing::Values("2026-13-01T09:30:00Z", "2026-00-01T09:30:00Z", "2026-03-32T09:30:00Z", "2026-03-00T09:30:00Z",
        "2026-02-30T09:30:00Z", "2026-02-29T09:30:00Z", "2100-02-29T09:30:00Z", "2026-04-31T09:30:00Z",
        "2026-03-01T24:00:00Z", "2026-03-01T25:30:00Z", "2026-03-01T09:60:00Z", "2026-03-01T09:30:60Z"));

TEST(ISO8601, EveryPrefixOfADateIsUnreadable)
{
    const std::string date = "2026-03-01T09:30:00.123+02:00";
    ASSERT_TRUE(readISO8601(date));
    for (std::size_t length = 0; length < date.size(); ++length) {
        EXPECT_EQ(readISO8601(date.substr(0, length)), std::nullopt) << date.substr(0, length);
    }
}

TEST(ISO8601, IsWrittenInUTCWithWholeSecondsAndNoFraction)
{
    EXPECT_EQ(writeISO8601(at(2026y / 3 / 1, 9h + 30min)), "2026-03-01T09:30:00Z");
    EXPECT_EQ(writeISO8601(at(2026y / 3 / 1, 9h + 30min + 59s + 999ms)), "2026-03-01T09:30:59Z");
    EXPECT_EQ(writeISO8601(at(987y / 12 / 31, 23h + 59min)), "0987-12-31T23:59:00Z");
    EXPECT_EQ(writeISO8601(at(1969y / 12 / 31, 23h + 59min + 59s + 1ms)), "1969-12-31T23:59:59Z");
}

TEST(ISO8601, WhatIsWrittenReadsBackAsTheSameSecond)
{
    std::mt19937_64 random(1);
    std::uniform_int_distribution<std::int64_t> anySecond(
        at(0y / 1 / 1, 0h).time_since_epoch() / 1s, at(9999y / 12 / 31, 0h).time_since_epoch() / 1s);
    for (int round = 0; round < 10'000; ++round) {
        const support::Time time{seconds{anySecond(random)}};
        EXPECT_EQ(readISO8601(writeISO8601(time)), time);
    }
}

}  // namespace

}  // namespace larkspan::model
