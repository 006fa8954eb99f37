#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "model/ISO8601.h"
#include "platform/LocaleText.h"

namespace larkspan::fakes {

/// The locale of the unit tests, the same on every machine: "2026-11-20", "09:30" and
/// "11-20 09:30", plain Latin letters in order, and
/// a time zone that is `offset` ahead of UTC.
class FakeLocaleText final : public platform::LocaleText {
public:
    std::string dateOnly(support::Time moment) const override
    {
        return model::writeISO8601(moment + offset).substr(0, 10);
    }

    std::string timeOnly(support::Time moment) const override
    {
        return model::writeISO8601(moment + offset).substr(11, 5);
    }

    std::string dayAndTime(support::Time moment) const override
    {
        return dateOnly(moment).substr(5) + ' ' + timeOnly(moment);
    }

    std::chrono::local_days day(support::Time moment) const override
    {
        return std::chrono::local_days(std::chrono::floor<std::chrono::days>(moment + offset).time_since_epoch());
    }

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
};

}  // namespace larkspan::fakes
