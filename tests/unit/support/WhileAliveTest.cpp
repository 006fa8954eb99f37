#include "support/WhileAlive.h"

#include <gtest/gtest.h>

#include <string>

namespace larkspan::support {

namespace {

struct Diary {
    void note(const std::string& text) { words += text; }

    std::string words;
};

TEST(ACallbackOfAnObject, ReachesItWithItsArguments)
{
    const auto diary = std::make_shared<Diary>();
    const std::function<void(const std::string&)> callback = whileAlive(std::weak_ptr(diary), &Diary::note);
    callback("a");
    callback("b");
    EXPECT_EQ(diary->words, "ab");
}

TEST(ACallbackOfAnObject, KeepsItNotAliveAndDoesNothingWhenItHasGone)
{
    auto diary = std::make_shared<Diary>();
    int calls = 0;
    const std::function<void()> callback = whileAlive(std::weak_ptr(diary), [&calls](Diary&) { ++calls; });
    callback();
    diary.reset();
    callback();
    EXPECT_EQ(calls, 1);
}

}  // namespace

}  // namespace larkspan::support
