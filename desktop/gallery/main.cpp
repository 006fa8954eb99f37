#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QQuickWindow>

#include <cstdio>
#include <utility>

#include "adapters/MainExecutor.h"
#include "gallery/Scene.h"
#include "gallery/ShownScene.h"
#include "qml/Renderer.h"

namespace larkspan::gallery {

namespace {

class Photographer {
public:
    explicit Photographer(QString folder)
        : folder_(std::move(folder))
    {
        QDir().mkpath(folder_);
    }

    void take(const Scene& scene, bool isDark)
    {
        auto look = ShownScene::Look::of(scene);
        look.isDark = isDark;
        const ShownScene shown(scene, look, main_);
        const auto scale = qGuiApp->devicePixelRatio();
        const auto name = QStringLiteral("%1/%2-%3@%4x.png")
                              .arg(folder_, QString::fromStdString(scene.name),
                                  isDark ? QStringLiteral("dark") : QStringLiteral("light"))
                              .arg(scale);
        if (!shown.window().grabWindow().save(name)) qFatal("cannot write %s", qPrintable(name));
    }

private:
    QString folder_;
    adapters::MainExecutor main_;
};

}  // namespace

}  // namespace larkspan::gallery

int main(int argc, char* argv[])
{
    // A process has only one scale, so the second scale needs a second process.
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        for (const char* scale : {"1", "2", "3"}) {
            qputenv("QT_SCALE_FACTOR", scale);
            const int code = QProcess::execute(QString::fromLocal8Bit(argv[0]), QStringList(argv + 1, argv + argc));
            if (code != 0) return code;
        }
        return 0;
    }

    // The pictures need no display, and are the same on every machine.
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
