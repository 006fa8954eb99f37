#include <gtest/gtest.h>

#include "ComponentsOnScreen.h"
#include "Measures.h"

namespace larkspan {

namespace {

class ComponentLayout : public ComponentsOnScreen {
protected:
    QQuickItem& label(const char* text) const { return item(Role::StaticText, QString::fromUtf8(text)); }
    QQuickItem& heading(const char* text) const { return item(Role::Heading, QString::fromUtf8(text)); }
    QQuickItem& row() const { return item(Role::ListItem, QStringLiteral("REST API")); }
    QQuickItem& text(const char* words) const
    {
        return *partOf(*window().contentItem(), "text", QString::fromUtf8(words));
    }

    static double baselineOf(const QQuickItem& item) { return frameOf(item).top() + item.baselineOffset(); }

    QQuickWindow& window() const { return mainWindow.window(); }
};

TEST_F(ComponentLayout, OfARowIsTheNameOverTheDescriptionBesideTheIconOfItsStatus)
{
    const auto& icon = *partOf(row(), "name", QStringLiteral("exclamationmark.triangle.fill"));
    EXPECT_EQ(colorOf(icon), light::yellow);
    EXPECT_LT(frameOf(icon).right(), frameOf(label("REST API")).left());
    EXPECT_EQ(label("REST API").height(), 22);
    EXPECT_EQ(fontOf(label("REST API")).weight(), QFont::DemiBold);
    EXPECT_EQ(sizeOf(label("REST API")), type::body);
    EXPECT_LE(frameOf(label("REST API")).bottom(), frameOf(label("Serves all.")).top());
    EXPECT_EQ(frameOf(label("REST API")).left(), frameOf(label("Serves all.")).left());
    EXPECT_EQ(sizeOf(label("Serves all.")), type::caption);
    EXPECT_EQ(colorOf(label("Serves all.")), light::secondary);
}

TEST_F(ComponentLayout, OfARowHasItsStatusInAPillAtTheFarEnd)
{
    const auto pill = PillMeasures::of(label("Degradedperformance"));
    EXPECT_EQ(pill.size, type::caption);
    EXPECT_EQ(pill.weight, QFont::Medium);
    EXPECT_EQ(pill.tint, 0.15);
    const auto& shape = shapeAround(label("Degradedperformance"));
    EXPECT_EQ(colorOf(label("Degradedperformance")), light::yellow);
    EXPECT_EQ(frameOf(shape).right(), frameOf(*shape.parentItem()).right());
    EXPECT_LT(frameOf(label("REST API")).right(), frameOf(shape).left());
}

TEST_F(ComponentLayout, OfARowIsVerticallyCentred)
{
    const auto& icon = *partOf(row(), "name", QStringLiteral("exclamationmark.triangle.fill"));
    const auto middle = frameOf(row()).center().y();
    EXPECT_NEAR(frameOf(icon).center().y(), middle, 1);
    EXPECT_NEAR(frameOf(shapeAround(label("Degradedperformance"))).center().y(), middle, 1);
}

TEST_F(ComponentLayout, OfADetailIsTheLargeNameAndOnItsBaselineThePill)
{
    open();
    const auto& name = heading("REST API");
    const auto& status = label("Degradedperformance");
    EXPECT_EQ(sizeOf(name), type::title);
    EXPECT_EQ(fontOf(name).weight(), QFont::DemiBold);
    EXPECT_NEAR(baselineOf(status), baselineOf(name), 1);
    EXPECT_EQ(PillMeasures::of(status).beside, 8);
    EXPECT_EQ(PillMeasures::of(status).aboveAndBelow, 4);
    EXPECT_EQ(PillMeasures::of(status).tint, 0.15);
    EXPECT_EQ(colorOf(status), light::yellow);
    EXPECT_EQ(frameOf(shapeAround(status)).right(), frameOf(*name.parentItem()).right());
}

TEST_F(ComponentLayout, OfADetailHasItsGroupBesideAFolderAndItsAddressBelow)
{
    open();
    const auto& group = label("Group");
    const auto& folder = *partOf(*group.parentItem(), "name", QStringLiteral("folder"));
    EXPECT_LT(frameOf(folder).right(), frameOf(group).left());
    EXPECT_EQ(frameOf(label("URL")).left(), frameOf(group).left());
    EXPECT_LT(frameOf(group).bottom(), frameOf(label("URL")).top());
}

TEST_F(ComponentLayout, OfAnEditorHasABoxOfEightyPointsAtLeast)
{
    edit();
    const auto& words = item(Role::EditableText, QStringLiteral("Description"));
    const auto* box = &words;
    while (!box->property("name").isValid()) box = box->parentItem();
    EXPECT_GE(box->height(), 80);
}

}  // namespace

}  // namespace larkspan
