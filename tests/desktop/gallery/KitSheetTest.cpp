#include "gallery/KitSheet.h"

#include <QDirIterator>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "ShownText.h"

namespace larkspan::gallery {

namespace {

const ShownScene::Look calm{};
const ShownScene::Look dark{.isDark = true};
const ShownScene::Look inContrast{.hasHighContrast = true};
const ShownScene::Look large{.fontPointSize = 20};
const ShownScene::Look largeInContrast{.isDark = true, .fontPointSize = 20, .hasHighContrast = true};

/// The pieces of the kit, by the names of their files; the theme has no look of its own.
std::set<QString> piecesOfTheKit()
{
    std::set<QString> names;
    QDirIterator files(
        QStringLiteral(":/qt/qml/Larkspan/Kit"), {QStringLiteral("*.qml")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        if (files.fileName() != QStringLiteral("Theme.qml")) names.insert(files.fileInfo().baseName());
    }
    return names;
}

/// The names of the types of everything that is visible in a window, and of what they are made of.
class VisibleTypes {
public:
    explicit VisibleTypes(const std::vector<QQuickWindow*>& windows)
    {
        for (const auto* const window : windows) visit(*window);
    }

    std::set<QString> names;

private:
    void visit(const QObject& object)
    {
        const auto* const item = qobject_cast<const QQuickItem*>(&object);
        if ((item && !item->isVisible()) || !seen_.insert(&object).second) return;
        for (const auto* type = object.metaObject(); type; type = type->superClass()) {
            names.insert(QString::fromLatin1(type->className()).section(QStringLiteral("_QML"), 0, 0));
        }
        for (const auto* const child : object.children()) visit(*child);
        if (const auto* const window = qobject_cast<const QQuickWindow*>(&object)) visit(*window->contentItem());
        if (!item) return;
        for (const auto* const child : item->childItems()) visit(*child);
    }

    std::set<const QObject*> seen_;
};

TEST(KitSheet, ShowsEveryPieceOfTheKit)
{
    adapters::MainExecutor main;
    KitSheet sheet(calm, main);
    auto& window = *sheet.windows().front();
    window.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto poses = sheet.poses();
    const auto focused = std::ranges::find(poses, QStringLiteral("focused"), &Pose::kind);
    sheet.take(**focused);
    const VisibleTypes visible(sheet.windows());
    const auto pieces = piecesOfTheKit();
    EXPECT_GT(pieces.size(), 40);
    for (const auto& piece : pieces) {
        EXPECT_TRUE(visible.names.contains(piece)) << piece.toStdString() << " does not stand on the sheet";
    }
}

TEST(KitSheet, ShowsEachStateAsItLooksUnderThePointerAndTheKeyboard)
{
    adapters::MainExecutor main;
    KitSheet sheet(calm, main);
    auto& window = *sheet.windows().front();
    window.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_GT(sheet.poses().size(), 50);
    const auto rest = window.grabWindow();
    for (const auto* const pose : sheet.poses()) {
        const auto place = pose->frame().toAlignedRect();
        sheet.take(*pose);
        QCoreApplication::processEvents();
        EXPECT_NE(window.grabWindow().copy(place), rest.copy(place))
            << pose->target()->metaObject()->className() << ", " << pose->kind().toStdString();
        sheet.leave(*pose);
        QCoreApplication::processEvents();
        EXPECT_EQ(window.grabWindow().copy(place), rest.copy(place))
            << pose->target()->metaObject()->className() << " stays " << pose->kind().toStdString();
    }
}

class TextOfTheKit : public testing::TestWithParam<ShownScene::Look> {};

TEST_P(TextOfTheKit, NeitherOverlapsNorIsCut)
{
    adapters::MainExecutor main;
    const KitSheet sheet(GetParam(), main);
    for (auto* const window : sheet.windows()) {
        window->grabWindow();
        EXPECT_EQ(findingsIn(*window), TextFindings{});
    }
}

INSTANTIATE_TEST_SUITE_P(InEachLook, TextOfTheKit, testing::Values(calm, dark, inContrast, large, largeInContrast));

}  // namespace

}  // namespace larkspan::gallery
