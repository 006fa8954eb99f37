#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "model/json/ISO8601.h"
#include "platform/LocaleText.h"

namespace larkspan::fakes {

/// The locale of the unit tests, the same on every machine: "2026-11-20", "09:30" and "11-20 09:30", weeks that start
/// on Monday, plain Latin letters in order, and a time zone that is `offset` ahead of UTC, and `offsetAfterChange` from
/// `change` on.
class FakeLocaleText final : public platform::LocaleText {
public:
    std::string dateOnly(support::Time moment) const override { return written(moment).substr(0, 10); }
    std::string timeOnly(support::Time moment) const override { return written(moment).substr(11, 5); }

    std::chrono::seconds utcOffset(support::Time moment) const override
    {
        return change && moment >= *change ? offsetAfterChange : offset;
    }

    std::string zoneName(support::Time moment) const override
    {
        return change && moment >= *change ? zoneAfterChange : zone;
    }

    std::string dayAndTime(support::Time moment) const override
    {
        return dateOnly(moment).substr(5) + ' ' + timeOnly(moment);
    }

    std::chrono::weekday firstDayOfWeek() const override { return weekBegin; }

    std::string weekdayName(std::chrono::weekday day) const override
    {
        return std::array{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}.at(day.c_encoding());
    }

    std::string monthAndYear(std::chrono::year_month month) const override
    {
        return std::to_string(static_cast<unsigned>(month.month())) + "/"
            + std::to_string(static_cast<int>(month.year()));
    }

    std::optional<DayHalves> dayHalves() const override { return halves; }

    std::weak_ordering compareIgnoringCase(std::string_view left, std::string_view right) const override
    {
        const auto smallLetters = [](std::string_view text) {
            std::string small(text);
            std::ranges::transform(small, small.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
            return small;
        };
        return smallLetters(left) <=> smallLetters(right);
    }

    std::chrono::minutes offset{0};
    std::string zone = "UTC";
    std::optional<support::Time> change{};
    std::chrono::minutes offsetAfterChange{0};
    std::string zoneAfterChange{};
    std::chrono::weekday weekBegin = std::chrono::Monday;
    std::optional<DayHalves> halves{};

private:
    std::string written(support::Time moment) const { return model::writeISO8601(moment + utcOffset(moment)); }
};

}  // namespace larkspan::fakes
