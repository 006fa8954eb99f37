#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include "ChosenSize.h"
#include "Measures.h"
#include "Screen.h"

namespace larkspan {

namespace {

using Role = QAccessible::Role;

class FailureInLargeLetters : public LargeLetters, public testing::Test, public Screen {};

TEST_F(FailureInLargeLetters, InTheSmallestWindowLeavesItsButtonsInViewAndIsToldWholeInATip)
{
    window().resize(480, 440);
    transport.script(pagesURL, 200,
        R"({"data": [{"id": "a", "name": "A", "created_at": "the day before yesterday, or the one before that, or one that )"
        R"(nobody remembers, in the morning or in the evening of whatever place the clock of the service stands in"}]})");
    refresh();
    settle();
    for (const auto* const name : {"Open Settings", "Retry"}) {
        EXPECT_LE(frameOf(item(Role::Button, QString::fromUtf8(name))).bottom(), 440) << name;
    }
    const QQuickItem* sentence = nullptr;
    for (const auto& thing : things()) {
        if (thing.role == Role::StaticText && thing.name.contains(QStringLiteral("yesterday"))) {
            sentence = qobject_cast<QQuickItem*>(thing.object);
        }
    }
    ASSERT_TRUE(sentence);
    EXPECT_TRUE(sentence->property("truncated").toBool());
    QTest::mouseMove(&window(), frameOf(*sentence).center().toPoint());
    EXPECT_TRUE(QTest::qWaitFor(
        [sentence] {
            for (const auto* const each : sentence->findChildren<QObject*>()) {
                if (each->inherits("QQuickToolTip") && each->property("visible").toBool()) {
                    return each->property("text").toString().endsWith(QStringLiteral("stands in"));
                }
            }
            return false;
        },
        3'000));
}

}  // namespace

}  // namespace larkspan
