#pragma once

#include <chrono>

#include "fakes/FakeLocaleText.h"

namespace larkspan::fakes {

/// Berlin around the day on which its clocks are put forward from 02:00 to 03:00.
inline FakeLocaleText berlinInSpring()
{
    using namespace std::chrono_literals;
    FakeLocaleText locale;
    locale.offset = 1h;
    locale.zone = "CET";
    locale.change = std::chrono::sys_days{2026y / 3 / 29} + 1h;
    locale.offsetAfterChange = 2h;
    locale.zoneAfterChange = "CEST";
    return locale;
}

/// Berlin around the day on which its clocks are put back from 03:00 to 02:00.
inline FakeLocaleText berlinInAutumn()
{
    using namespace std::chrono_literals;
    FakeLocaleText locale;
    locale.offset = 2h;
    locale.zone = "CEST";
    locale.change = std::chrono::sys_days{2026y / 10 / 25} + 1h;
    locale.offsetAfterChange = 1h;
    locale.zoneAfterChange = "CET";
    return locale;
}

}  // namespace larkspan::fakes
