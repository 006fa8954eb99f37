#include "presentation/shapes/TimelineRow.h"

#include <utility>

namespace larkspan::presentation {

TimelineRow timelineRow(std::string symbol, std::string label, support::Time moment, const platform::LocaleText& locale)
{
    return {.symbol = std::move(symbol),
        .label = std::move(label),
        .date = locale.dateOnly(moment),
        .time = locale.timeOnly(moment)};
}

}  // namespace larkspan::presentation
