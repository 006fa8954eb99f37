#include "workspace/UpdateReport.h"

#include <gtest/gtest.h>

namespace larkspan::workspace {

namespace {

using platform::UpdateCheck;
using Finding = UpdateCheck::Finding;

struct ReportRow {
    std::optional<UpdateCheck> finding;
    UpdateReport report;
};

class UpdateReports : public testing::TestWithParam<ReportRow> {};

TEST_P(UpdateReports, TellEachFindingInWords)
{
    EXPECT_EQ(UpdateReport::of(GetParam().finding), GetParam().report);
}

INSTANTIATE_TEST_SUITE_P(EachFinding, UpdateReports,
    testing::Values(ReportRow{std::nullopt,
                        {.title = "Checking for Updates…", .text = "", .showsProgress = true, .closeLabel = "Close"}},
        ReportRow{UpdateCheck{.finding = Finding::upToDate, .installedVersion = "1.2"},
            {.title = "You’re Up to Date", .text = "Kestrune 1.2 is the newest version available."}},
        ReportRow{UpdateCheck{.finding = Finding::upToDate},
            {.title = "You’re Up to Date", .text = "Kestrune is the newest version available."}},
        ReportRow{
            UpdateCheck{.finding = Finding::updateAvailable, .installedVersion = "1.2", .availableVersion = "1.3"},
            {.title = "Update Available",
                .text = "Kestrune 1.3 is available. You have 1.2. Install it the way you install your system’s other "
                        "updates."}},
        ReportRow{UpdateCheck{.finding = Finding::updateAvailable, .availableVersion = "1.3"},
            {.title = "Update Available",
                .text = "Kestrune 1.3 is available. Install it the way you install your system’s other updates."}},
        ReportRow{UpdateCheck{.finding = Finding::notPackaged},
            {.title = "Couldn’t Check for Updates",
                .text
                = "This copy of Kestrune wasn’t installed from a package, so there is nothing to compare it with."}},
        ReportRow{UpdateCheck{.finding = Finding::noPackageService},
            {.title = "Couldn’t Check for Updates",
                .text = "There is no package service on this computer. Updates come with those of your distribution."}},
        ReportRow{UpdateCheck{.finding = Finding::failed},
            {.title = "Couldn’t Check for Updates",
                .text = "The package service gave no answer. Please try again later."}}));

}  // namespace

}  // namespace larkspan::workspace
