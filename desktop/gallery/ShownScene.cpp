#include "gallery/ShownScene.h"

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QQuickItem>
#include <QTimer>

#include <chrono>
#include <utility>

#include "workspace/SettingsView.h"

namespace larkspan::gallery {

namespace {

using namespace std::chrono_literals;

constexpr auto timeBetweenLooks = 30ms;
constexpr int mostLooks = 50;

}  // namespace

void settle(QQuickWindow& window)
{
    QImage before;
    for (int looks = 0; looks < mostLooks; ++looks) {
        QEventLoop loop;
        QTimer::singleShot(timeBetweenLooks, &loop, &QEventLoop::quit);
        loop.exec();
        auto now = window.grabWindow();
        if (now == before) return;
        before = std::move(now);
    }
}

void setApplicationFontSize(double points)
{
    QFont font = QGuiApplication::font();
    font.setPointSizeF(points);
    QGuiApplication::setFont(font);
}

ShownScene::ShownScene(const Scene& scene, const Look& look, adapters::MainExecutor& main)
    : stage_((setApplicationFontSize(look.fontPointSize), main))
    , mainWindow_(stage_.content(), main)
{
    mainWindow_.appearance().setProperty("isDark", look.isDark);
    mainWindow_.appearance().setProperty("hasHighContrast", look.hasHighContrast);
    mainWindow_.appearance().setProperty("reducesMotion", true);
    scene.arrange(stage_);
    window().resize(look.size);
    window().show();
    settle(window());
    typeWhatIsKnown();
    if (!scene.pressed.empty()) press(QString::fromStdString(scene.pressed));
}

/// Types the text that a scene's sheet already knows into its field.
void ShownScene::typeWhatIsKnown()
{
    const auto& settings = stage_.dashboard().settings();
    if (!settings || settings->apiKey->empty()) return;
    for (auto* const item : window().findChildren<QQuickItem*>()) {
        if (item->property("echoMode").isValid()) item->setProperty("text", QString::fromStdString(*settings->apiKey));
    }
    settle(window());
}

/// Presses the toolbar's button with this help.
void ShownScene::press(const QString& help)
{
    for (auto* const item : window().findChildren<QQuickItem*>()) {
        if (item->property("help").toString() == help) QMetaObject::invokeMethod(item, "clicked");
    }
    settle(window());
}

}  // namespace larkspan::gallery
