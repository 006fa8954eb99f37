#include "core/OverallStatus.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace larkspan::core {

namespace {

using model::StatusPage;
using model::StatusPageStatus;

std::vector<StatusPage> pagesWith(const std::vector<StatusPageStatus>& statuses)
{
    std::vector<StatusPage> pages;
    for (const auto status : statuses) {
        StatusPage page;
        page.id = std::to_string(pages.size());
        page.status = status;
        pages.push_back(page);
    }
    return pages;
}

TEST(RolledUpStatus, OfNoPagesIsUnknownAndStaleWithAnError)
{
    EXPECT_EQ(rolledUpStatus({}, false), OverallStatus::unknown);
    EXPECT_EQ(rolledUpStatus({}, true), OverallStatus::stale);
}

TEST(RolledUpStatus, OfEverySetOfPageStatusesIsTheWorstOfThem)
{
    // From worst to best; the statuses of the account are each subset of them.
    constexpr StatusPageStatus pageStatuses[] = {StatusPageStatus::down, StatusPageStatus::degraded,
        StatusPageStatus::maintenance, StatusPageStatus::operational, StatusPageStatus::unknown};
    constexpr OverallStatus worst[] = {OverallStatus::down, OverallStatus::degraded, OverallStatus::maintenance,
        OverallStatus::operational, OverallStatus::unknown};

    for (unsigned subset = 1; subset < 32; ++subset) {
        std::vector<StatusPageStatus> present;
        std::size_t first = 5;
        for (std::size_t i = 5; i-- > 0;) {
            if ((subset >> i & 1u) == 0) continue;
            present.push_back(pageStatuses[i]);
            first = i;
        }
        const auto pages = pagesWith(present);
        EXPECT_EQ(rolledUpStatus(pages, false), worst[first]) << "subset " << subset;
        EXPECT_EQ(rolledUpStatus(pages, true), first == 0 ? OverallStatus::down : OverallStatus::stale)
            << "subset " << subset;
    }
}

TEST(OverallStatus, HasTheRawValuesThatTheUserReads)
{
    EXPECT_EQ(rawValue(OverallStatus::operational), "Operational");
    EXPECT_EQ(rawValue(OverallStatus::degraded), "Degraded");
    EXPECT_EQ(rawValue(OverallStatus::down), "Down");
    EXPECT_EQ(rawValue(OverallStatus::maintenance), "Maintenance");
    EXPECT_EQ(rawValue(OverallStatus::stale), "Stale");
    EXPECT_EQ(rawValue(OverallStatus::unknown), "Unknown");
}

}  // namespace

}  // namespace larkspan::core
