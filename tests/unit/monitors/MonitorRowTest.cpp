#include "monitors/MonitorRow.h"

#include <gtest/gtest.h>

#include <string>

#include "monitors/MonitorPills.h"

namespace larkspan::monitors {

namespace {

using model::Monitor;
using model::MonitorStatus;
using model::MonitorType;
using presentation::ActionButton;
using presentation::Pill;
using presentation::Tone;

Monitor gateway(MonitorStatus status = MonitorStatus::operational)
{
    Monitor monitor;
    monitor.id = "7";
    monitor.name = "Gateway";
    monitor.status = status;
    monitor.type = MonitorType::smtp;
    return monitor;
}

TEST(MonitorRow, IsClosedUntilItIsOpened)
{
    EXPECT_EQ(MonitorRow::of(gateway(), nullptr, false),
        (MonitorRow{.id = "7",
            .title = "Gateway",
            .statusIcon = "checkmark.circle.fill",
            .status = "Operational",
            .tone = Tone::green,
            .type = {.text = "SMTP", .tone = Tone::secondary},
            .disclosure = "Show latency graph",
            .buttons = {{.id = "pauseResume", .label = "Pause", .symbol = "pause.fill"},
                {.id = "checkNow", .label = "Check Now", .symbol = "arrow.clockwise"}}}));
}

TEST(MonitorRow, OffersToResumeWhatIsPausedWhateverItsStatusSays)
{
    auto paused = gateway(MonitorStatus::degraded);
    paused.isPaused = true;
    const auto row = MonitorRow::of(paused, nullptr, false);
    EXPECT_EQ(row.buttons.front(), (ActionButton{.id = "pauseResume", .label = "Resume", .symbol = "play.fill"}));
    EXPECT_EQ(row.status, "Degraded");
    EXPECT_EQ(MonitorRow::of(gateway(MonitorStatus::paused), nullptr, false).buttons.front().label, "Pause");
}

TEST(MonitorRow, HasNoButtonEnabledWhileAnActionOnItRuns)
{
    for (const auto& button : MonitorRow::of(gateway(), nullptr, true).buttons) EXPECT_FALSE(button.isEnabled);
}

TEST(MonitorRow, ShowsThatItIsBusyWhileAnActionOnItRuns)
{
    EXPECT_TRUE(MonitorRow::of(gateway(), nullptr, true).isBusy);
    EXPECT_FALSE(MonitorRow::of(gateway(), nullptr, false).isBusy);
}

struct StatusWord {
    MonitorStatus status;
    std::string word;
};

class StatusOfARow : public testing::TestWithParam<StatusWord> {};

TEST_P(StatusOfARow, IsItsWordWithALargeLetter)
{
    EXPECT_EQ(MonitorRow::of(gateway(GetParam().status), nullptr, false).status, GetParam().word);
}

INSTANTIATE_TEST_SUITE_P(EachStatus, StatusOfARow,
    testing::Values(StatusWord{MonitorStatus::operational, "Operational"},
        StatusWord{MonitorStatus::degraded, "Degraded"}, StatusWord{MonitorStatus::down, "Down"},
        StatusWord{MonitorStatus::paused, "Paused"}, StatusWord{MonitorStatus::unknown, "Unknown"}));

struct TypeWord {
    MonitorType type;
    std::string word;
};

class TypeOfARow : public testing::TestWithParam<TypeWord> {};

TEST_P(TypeOfARow, IsItsWordInCapitals)
{
    auto monitor = gateway();
    monitor.type = GetParam().type;
    EXPECT_EQ(typePill(monitor), (Pill{GetParam().word, Tone::secondary}));
}

INSTANTIATE_TEST_SUITE_P(EachType, TypeOfARow,
    testing::Values(TypeWord{MonitorType::http, "HTTP"}, TypeWord{MonitorType::tcp, "TCP"},
        TypeWord{MonitorType::dns, "DNS"}, TypeWord{MonitorType::smtp, "SMTP"}, TypeWord{MonitorType::custom, "CUSTOM"},
        TypeWord{MonitorType::api, "API"}, TypeWord{MonitorType::site, "SITE"}));

}  // namespace

}  // namespace larkspan::monitors
