#include <QAccessible>
#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "FocusStop.h"
#include "ShownText.h"
#include "gallery/ShownScene.h"

namespace larkspan::gallery {

namespace {

constexpr qreal slack = 2;
constexpr int mostStops = 80;

bool isField(QQuickItem* item)
{
    const std::set roles{QAccessible::EditableText, QAccessible::ComboBox, QAccessible::CheckBox, QAccessible::Grouping,
        QAccessible::Cell};
    auto* const access = QAccessible::queryAccessibleInterface(item);
    return access && roles.contains(access->role());
}

/// Whether the text says what the field is for: its name, or a part of it, as "Start" for "Start hour" and the month
/// for one of its days.
bool isLabel(const QString& text, const QString& field)
{
    return text == field || (!text.isEmpty() && (field.startsWith(text + ' ') || field.endsWith(' ' + text)));
}

bool isWhole(const ShownText& text)
{
    return text.seen.height() >= text.painted.height() - slack;
}

Scene sceneOf(const std::string& name)
{
    const auto all = scenes();
    return *std::ranges::find(all, name, &Scene::name);
}

class FieldsOfAForm : public testing::TestWithParam<std::string> {
protected:
    adapters::MainExecutor main;
};

TEST_P(FieldsOfAForm, AreReachedAndSeenWithTheirLabelsAndTheMainActionInTheSmallestWindowWithALargeFont)
{
    const ShownScene shown(sceneOf(GetParam()), {.size = {480, 440}, .fontPointSize = 20}, main);
    auto& window = shown.window();
    window.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QAccessible::setActive(true);
    std::vector<const QQuickItem*> reached;
    int fields = 0;
    while (static_cast<int>(reached.size()) < mostStops) {
        QTest::keyClick(&window, Qt::Key_Tab);
        QCoreApplication::processEvents();
        window.grabWindow();
        const auto stop = focusIn(window);
        if (!stop.holder || std::ranges::find(reached, stop.holder) != reached.end()) break;
        reached.push_back(stop.holder);
        if (!isField(window.activeFocusItem())) continue;
        ++fields;
        const auto name = stop.name.toStdString();
        const auto texts = textsOf(window);
        EXPECT_GE(stop.seen.height(), std::min(stop.place.height(), stop.mostHeight) - slack) << name;
        EXPECT_TRUE(std::ranges::any_of(
            texts, [&](const auto& text) { return isLabel(text.text, stop.name) && isWhole(text); }))
            << "no label is in sight with " << name;
        EXPECT_TRUE(std::ranges::any_of(
            texts, [](const auto& text) { return text.text == QStringLiteral("Save") && isWhole(text); }))
            << "Save is out of sight with " << name;
    }
    EXPECT_GE(fields, 3);
}

INSTANTIATE_TEST_SUITE_P(EachForm, FieldsOfAForm,
    testing::Values("incident-form", "incident-form-loading-monitors", "maintenance-form",
        "maintenance-form-end-before-start", "maintenance-editing", "component-editing",
        "component-editing-unlisted-status"));

}  // namespace

}  // namespace larkspan::gallery
