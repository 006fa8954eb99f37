#include "maintenances/MaintenanceStatus.h"

#include <gtest/gtest.h>

#include <string>

namespace larkspan::maintenances {

namespace {

using presentation::Pill;
using presentation::Tone;

struct StatusRow {
    std::string status;
    Pill pill;
};

class StatusOnAMaintenancePill : public testing::TestWithParam<StatusRow> {};

TEST_P(StatusOnAMaintenancePill, HasItsWordAndItsColour)
{
    const auto& [status, pill] = GetParam();
    EXPECT_EQ(maintenanceStatusLabel(status), pill.text);
    EXPECT_EQ(maintenanceStatusColor(status), pill.tone);
    EXPECT_EQ(statusPill(status), pill);
}

INSTANTIATE_TEST_SUITE_P(EachKnown, StatusOnAMaintenancePill,
    testing::Values(StatusRow{"scheduled", {"Scheduled", Tone::blue}},
        StatusRow{"in_progress", {"In Progress", Tone::yellow}}, StatusRow{"completed", {"Completed", Tone::green}}));

INSTANTIATE_TEST_SUITE_P(AnyOther, StatusOnAMaintenancePill,
    testing::Values(StatusRow{"cancelled", {"Cancelled", Tone::gray}},
        StatusRow{"SCHEDULED", {"Scheduled", Tone::gray}}, StatusRow{"In_Progress", {"In_Progress", Tone::gray}},
        StatusRow{" completed", {" Completed", Tone::gray}}, StatusRow{"", {"", Tone::gray}}));

}  // namespace

}  // namespace larkspan::maintenances
