#include "monitors/MonitorPills.h"

#include <algorithm>
#include <utility>

#include "monitors/MonitorColors.h"
#include "support/Capitalized.h"

namespace larkspan::monitors {

using model::Monitor;
using presentation::Pill;
using presentation::Tone;

std::string statusWord(const Monitor& monitor)
{
    return support::capitalized(rawText(monitor.status));
}

Pill typePill(const Monitor& monitor)
{
    std::string letters(rawText(monitor.type));
    std::ranges::transform(letters, letters.begin(), [](char letter) { return static_cast<char>(letter - 'a' + 'A'); });
    return {.text = std::move(letters), .tone = Tone::secondary};
}

std::vector<Pill> headerPills(const Monitor& monitor)
{
    return {{.text = statusWord(monitor),
                .tone = monitorStatusColor(monitor.status),
                .symbol = std::string(monitorStatusIcon(monitor.status))},
        typePill(monitor)};
}

}  // namespace larkspan::monitors
