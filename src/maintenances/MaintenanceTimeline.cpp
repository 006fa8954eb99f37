#include "maintenances/MaintenanceTimeline.h"

#include <optional>

#include "maintenances/MaintenanceStatus.h"

namespace larkspan::maintenances {

using model::Maintenance;
using presentation::TimelineRow;

namespace {

constexpr const char* changeSymbol = "arrow.triangle.2.circlepath";
constexpr const char* changeLabel = "Updated";

/// Adds a row for each existing moment.
class Timeline {
public:
    explicit Timeline(const platform::LocaleText& locale)
        : locale_(locale)
    {
    }

    Timeline& add(const char* symbol, const char* label, const std::optional<support::Time>& moment)
    {
        if (moment) rows.push_back(presentation::timelineRow(symbol, label, *moment, locale_));
        return *this;
    }

    std::vector<TimelineRow> rows;

private:
    const platform::LocaleText& locale_;
};

}  // namespace

// The record has only one end, so until the maintenance is completed it is shown both as planned and as actual.
std::vector<TimelineRow> maintenanceTimeline(const Maintenance& maintenance, const platform::LocaleText& locale)
{
    const auto plannedEnd = maintenance.status == completed ? std::nullopt : maintenance.completedAt;
    return Timeline(locale)
        .add("calendar.badge.clock", "Scheduled Start", maintenance.scheduledFor)
        .add("calendar.badge.minus", "Scheduled End", plannedEnd)
        .add("play.circle", "Started", maintenance.startedAt)
        .add("checkmark.circle", "Completed", maintenance.completedAt)
        .add(changeSymbol, changeLabel, maintenance.createdAt ? std::nullopt : maintenance.updatedAt)
        .rows;
}

std::vector<TimelineRow> recordTimeline(const Maintenance& maintenance, const platform::LocaleText& locale)
{
    if (!maintenance.createdAt) return {};
    return Timeline(locale)
        .add("plus.circle", "Created", maintenance.createdAt)
        .add(changeSymbol, changeLabel, maintenance.updatedAt)
        .rows;
}

}  // namespace larkspan::maintenances
