#include "support/ScreenUpdates.h"

#include <gtest/gtest.h>

#include <optional>

#include "fakes/ManualExecutor.h"
#include "support/AfterChanges.h"

namespace larkspan::support {

namespace {

class UpdatesOfAWindow : public testing::Test {
protected:
    AfterChanges counting(int& count)
    {
        return {updates, [&count] { ++count; }};
    }

    fakes::ManualExecutor main;
    ScreenUpdates updates{main};
    int told = 0;
};

TEST_F(UpdatesOfAWindow, AllChangesOfATurnAreOneNoticeThatComesAfterThem)
{
    const auto notice = counting(told);
    notice.announce();
    notice.announce();
    EXPECT_EQ(told, 0);
    main.run();
    EXPECT_EQ(told, 1);
}

TEST_F(UpdatesOfAWindow, EachTurnWithChangesHasANoticeOfItsOwn)
{
    const auto notice = counting(told);
    notice.announce();
    main.run();
    notice.announce();
    main.run();
    EXPECT_EQ(told, 2);
}

TEST_F(UpdatesOfAWindow, WhileNobodySeesItChangesAreKeptForEachScreenAndToldOnceWhenSomebodyDoesAgain)
{
    int other = 0;
    const auto notice = counting(told);
    const auto otherNotice = counting(other);
    updates.hold();
    notice.announce();
    main.run();
    notice.announce();
    otherNotice.announce();
    main.run();
    EXPECT_EQ(told + other, 0);

    updates.release();
    main.run();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(other, 1);
    notice.announce();
    main.run();
    EXPECT_EQ(told, 2);
}

TEST_F(UpdatesOfAWindow, AChangeThatIsOnItsWayWhenNobodySeesItAnyMoreIsKeptToo)
{
    const auto notice = counting(told);
    notice.announce();
    updates.hold();
    main.run();
    EXPECT_EQ(told, 0);
    updates.release();
    main.run();
    EXPECT_EQ(told, 1);
}

TEST_F(UpdatesOfAWindow, WhatTheUserDoesNextMeetsScreensThatKnowAllChanges)
{
    const auto notice = counting(told);
    notice.announce();
    updates.deliver();
    EXPECT_EQ(told, 1);
    main.run();
    EXPECT_EQ(told, 1);

    notice.announce();
    main.run();
    updates.deliver();
    EXPECT_EQ(told, 2);
}

TEST_F(UpdatesOfAWindow, AChangeThatANoticeBringsAboutHasANoticeOfItsOwn)
{
    const auto second = counting(told);
    const AfterChanges first(updates, [&second] { second.announce(); });
    first.announce();
    updates.deliver();
    EXPECT_EQ(told, 0);
    main.run();
    EXPECT_EQ(told, 1);
}

TEST_F(UpdatesOfAWindow, WhatAProgramDoesInAWindowThatNobodySeesBringsNoNotice)
{
    const auto notice = counting(told);
    notice.announce();
    updates.hold();
    updates.deliver();
    EXPECT_EQ(told, 0);
    updates.release();
    main.run();
    EXPECT_EQ(told, 1);
}

TEST_F(UpdatesOfAWindow, AScreenThatWasDestroyedBeforeItsNoticeIsNotNotified)
{
    const auto tell = [this] { ++told; };
    std::optional<AfterChanges> notice(std::in_place, updates, tell);
    notice->announce();
    notice.reset();
    main.run();

    notice.emplace(updates, tell);
    updates.hold();
    notice->announce();
    notice.reset();
    updates.release();
    main.run();
    EXPECT_EQ(told, 0);
}

TEST_F(UpdatesOfAWindow, AWindowThatWentBeforeTheNoticeOfItsScreenHarmsNothing)
{
    std::optional<ScreenUpdates> gone(std::in_place, main);
    const AfterChanges notice(*gone, [this] { ++told; });
    notice.announce();
    gone.reset();
    main.run();
    EXPECT_EQ(told, 1);
}

}  // namespace

}  // namespace larkspan::support
