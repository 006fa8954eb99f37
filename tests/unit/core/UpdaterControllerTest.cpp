#include "core/UpdaterController.h"

#include <gtest/gtest.h>

#include "fakes/FakeUpdater.h"

namespace larkspan::core {

namespace {

using platform::UpdateCheck;

class Updates : public testing::Test {
protected:
    fakes::FakeUpdater updater;
    std::shared_ptr<UpdaterController> controller = std::make_shared<UpdaterController>(updater);
    const UpdateCheck upToDate{.finding = UpdateCheck::Finding::upToDate, .installedVersion = "1.2"};
};

TEST_F(Updates, ACheckShowsAtOnceAndTellsItsFindingWhenItComes)
{
    controller->checkForUpdates();
    EXPECT_TRUE(*controller->isShowing);
    EXPECT_EQ(*controller->finding, std::nullopt);
    updater.pending.at(0)(upToDate);
    EXPECT_EQ(*controller->finding, upToDate);
    EXPECT_TRUE(*controller->isShowing);
}

TEST_F(Updates, ASecondQuestionGoesOnWithTheCheckThatRuns)
{
    controller->checkForUpdates();
    controller->dismiss();
    controller->checkForUpdates();
    EXPECT_TRUE(*controller->isShowing);
    EXPECT_EQ(updater.pending.size(), 1u);
}

TEST_F(Updates, AskedAgainAfterwardsItLooksAgain)
{
    controller->checkForUpdates();
    updater.pending.at(0)(upToDate);
    controller->checkForUpdates();
    EXPECT_EQ(*controller->finding, std::nullopt);
    EXPECT_EQ(updater.pending.size(), 2u);
}

TEST_F(Updates, DismissedInMidCheckItStaysDownWhenTheFindingComes)
{
    controller->checkForUpdates();
    controller->dismiss();
    updater.pending.at(0)(upToDate);
    EXPECT_FALSE(*controller->isShowing);
}

TEST_F(Updates, AFindingThatComesAfterTheEndHarmsNothing)
{
    controller->checkForUpdates();
    const std::weak_ptr weak = controller;
    controller.reset();
    EXPECT_TRUE(weak.expired());
    updater.pending.at(0)(upToDate);
}

}  // namespace

}  // namespace larkspan::core
