#include "gallery/ShownScene.h"

#include <QFont>
#include <QGuiApplication>
#include <QQuickItem>
#include <QTimer>

namespace larkspan::gallery {

namespace {

void settle()
{
    // Long enough for a few frames; there is no motion to wait for.
    QEventLoop loop;
    QTimer::singleShot(80, &loop, &QEventLoop::quit);
    loop.exec();
}

void setFontSize(double points)
{
    QFont font = QGuiApplication::font();
    font.setPointSizeF(points);
    QGuiApplication::setFont(font);
}

}  // namespace

ShownScene::ShownScene(const Scene& scene, const Look& look, adapters::MainExecutor& main)
    : stage_((setFontSize(look.fontPointSize), main))
    , mainWindow_(stage_.content(), main)
{
    mainWindow_.appearance().setProperty("isDark", look.isDark);
    mainWindow_.appearance().setProperty("reducesMotion", true);
    scene.arrange(stage_);
    window().resize(look.size);
    window().show();
    settle();
    typeWhatIsKnown();
    if (!scene.pressed.empty()) press(QString::fromStdString(scene.pressed));
}

/// Puts the text that a scene's sheet knows of into its field, as a hand would have.
void ShownScene::typeWhatIsKnown()
{
    const auto& settings = stage_.dashboard().settings();
    if (!settings || settings->apiKey->empty()) return;
    for (auto* const item : window().findChildren<QQuickItem*>()) {
        if (item->property("echoMode").isValid()) item->setProperty("text", QString::fromStdString(*settings->apiKey));
    }
    settle();
}

/// Presses the toolbar's button with this help.
void ShownScene::press(const QString& help)
{
    for (auto* const item : window().findChildren<QQuickItem*>()) {
        if (item->property("help").toString() == help) QMetaObject::invokeMethod(item, "clicked");
    }
    settle();
}

}  // namespace larkspan::gallery
