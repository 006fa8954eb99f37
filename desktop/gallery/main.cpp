#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

#include <cstdio>

#include "adapters/MainExecutor.h"
#include "gallery/Scene.h"
#include "gallery/Stage.h"
#include "qml/MainWindow.h"
#include "qml/Renderer.h"

namespace larkspan::gallery {

namespace {

void settle()
{
    // Long enough for a few frames; there is no motion to wait for.
    QEventLoop loop;
    QTimer::singleShot(80, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Puts the text that a scene's sheet knows of into its field, as a hand would have.
void typeWhatIsKnown(QQuickWindow& window, Stage& stage)
{
    const auto& settings = stage.dashboard().settings();
    if (!settings || settings->apiKey->empty()) return;
    for (auto* const item : window.findChildren<QQuickItem*>()) {
        if (item->property("echoMode").isValid()) item->setProperty("text", QString::fromStdString(*settings->apiKey));
    }
    settle();
}

/// Presses the toolbar's button with this help.
void press(QQuickWindow& window, const QString& help)
{
    for (auto* const item : window.findChildren<QQuickItem*>()) {
        if (item->property("help").toString() == help) QMetaObject::invokeMethod(item, "clicked");
    }
    settle();
}

class Photographer {
public:
    explicit Photographer(QString folder)
        : folder_(std::move(folder))
    {
        QDir().mkpath(folder_);
    }

    void take(const Scene& scene, bool isDark)
    {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(scene.fontPointSize);
        QGuiApplication::setFont(font);

        Stage stage(main_);
        MainWindow mainWindow(stage.content(), main_);
        mainWindow.appearance().setProperty("isDark", isDark);
        mainWindow.appearance().setProperty("reducesMotion", true);
        scene.arrange(stage);
        mainWindow.window().resize(scene.width, scene.height);
        mainWindow.window().show();
        settle();
        typeWhatIsKnown(mainWindow.window(), stage);
        if (!scene.pressed.empty()) press(mainWindow.window(), QString::fromStdString(scene.pressed));

        const auto scale = qGuiApp->devicePixelRatio();
        const auto name = QStringLiteral("%1/%2-%3@%4x.png")
                              .arg(folder_, QString::fromStdString(scene.name),
                                  isDark ? QStringLiteral("dark") : QStringLiteral("light"))
                              .arg(scale);
        if (!mainWindow.window().grabWindow().save(name)) qFatal("cannot write %s", qPrintable(name));
    }

private:
    QString folder_;
    adapters::MainExecutor main_;
};

}  // namespace

}  // namespace larkspan::gallery

int main(int argc, char* argv[])
{
    // A process has one scale, so the second one gets a process of its own.
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        for (const char* scale : {"1", "2", "3"}) {
            qputenv("QT_SCALE_FACTOR", scale);
            const int code = QProcess::execute(QString::fromLocal8Bit(argv[0]), QStringList(argv + 1, argv + argc));
            if (code != 0) return code;
        }
        return 0;
    }

    // The pictures need no display, and are the same wherever they are made.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    larkspan::chooseRenderer();
    const QGuiApplication qt(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: larkspan-gallery FOLDER\n", stderr);
        return 2;
    }
    if (QFontDatabase::families().contains(QStringLiteral("Inter")))
        QGuiApplication::setFont(QFont(QStringLiteral("Inter")));

    larkspan::gallery::Photographer photographer(arguments.at(1));
    for (const auto& scene : larkspan::gallery::scenes()) {
        for (const bool isDark : {false, true}) photographer.take(scene, isDark);
    }
    return 0;
}
