#include "presentation/time/ClockFace.h"

#include <gtest/gtest.h>

#include <optional>
#include <regex>
#include <string>

namespace larkspan::presentation {

namespace {

using enum ClockFace;

TEST(ClockOfTwentyFourHours, ShowsTwoDigits)
{
    EXPECT_EQ(hourText(0, twentyFourHours), "00");
    EXPECT_EQ(hourText(9, twentyFourHours), "09");
    EXPECT_EQ(hourText(23, twentyFourHours), "23");
    EXPECT_EQ(minuteText(0), "00");
    EXPECT_EQ(minuteText(59), "59");
}

TEST(ClockOfTwelveHours, BeginsItsHalvesWithTwelve)
{
    EXPECT_EQ(hourText(0, twelveHours), "12");
    EXPECT_EQ(hourText(1, twelveHours), "1");
    EXPECT_EQ(hourText(12, twelveHours), "12");
    EXPECT_EQ(hourText(23, twelveHours), "11");
}

struct TypedRow {
    std::string digits;
    std::optional<int> inTheMorning;
    std::optional<int> inTheEvening;
    std::optional<int> ofTwentyFour;
};

class TypedHour : public testing::TestWithParam<TypedRow> {};

TEST_P(TypedHour, IsTheOneThatTheClockWouldShow)
{
    const auto& row = GetParam();
    EXPECT_EQ(typedHour(row.digits, 9, twelveHours), row.inTheMorning);
    EXPECT_EQ(typedHour(row.digits, 21, twelveHours), row.inTheEvening);
    EXPECT_EQ(typedHour(row.digits, 21, twentyFourHours), row.ofTwentyFour);
}

INSTANTIATE_TEST_SUITE_P(EachKind, TypedHour,
    testing::Values(TypedRow{"0", 0, 0, 0}, TypedRow{"1", 1, 13, 1}, TypedRow{"11", 11, 23, 11},
        TypedRow{"12", 0, 12, 12}, TypedRow{"13", 13, 13, 13}, TypedRow{"07", 7, 19, 7}, TypedRow{"23", 23, 23, 23},
        TypedRow{"24", {}, {}, {}}, TypedRow{"99", {}, {}, {}}, TypedRow{"", {}, {}, {}}, TypedRow{"-1", {}, {}, {}},
        TypedRow{"1a", {}, {}, {}}, TypedRow{"99999999999", {}, {}, {}}));

TEST(TypedMinute, IsOneOfTheHour)
{
    EXPECT_EQ(typedMinute("0"), 0);
    EXPECT_EQ(typedMinute("59"), 59);
    EXPECT_EQ(typedMinute("60"), std::nullopt);
    EXPECT_EQ(typedMinute(""), std::nullopt);
    EXPECT_EQ(typedMinute("x"), std::nullopt);
}

TEST(TypedField, TakesWhatIsATimeAndNothingElse)
{
    const std::regex hours(hourPattern);
    const std::regex minutes(minutePattern);
    for (int number = 0; number < 1'000; ++number) {
        const auto digits = std::to_string(number);
        for (const auto& each : {digits, "0" + digits}) {
            const bool fits = each.size() <= 2;
            EXPECT_EQ(std::regex_match(each, hours), fits && typedHour(each, 9, twentyFourHours)) << each;
            EXPECT_EQ(std::regex_match(each, minutes), fits && typedMinute(each)) << each;
        }
    }
}

TEST(TypedField, IsWholeWhenNoDigitCanFollow)
{
    for (const auto* const open : {"", "0", "1", "2"}) EXPECT_FALSE(isWholeHour(open)) << open;
    for (const auto* const whole : {"3", "9", "00", "12", "23"}) EXPECT_TRUE(isWholeHour(whole)) << whole;
    for (const auto* const open : {"", "0", "5"}) EXPECT_FALSE(isWholeMinute(open)) << open;
    for (const auto* const whole : {"6", "9", "00", "59"}) EXPECT_TRUE(isWholeMinute(whole)) << whole;
}

}  // namespace

}  // namespace larkspan::presentation
