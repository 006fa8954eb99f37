#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QQuickWindow>

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "adapters/MainExecutor.h"
#include "gallery/DesktopFonts.h"
#include "gallery/KitSheet.h"
#include "gallery/PanelIcons.h"
#include "gallery/Scene.h"
#include "gallery/ShownScene.h"
#include "qml/Renderer.h"

namespace larkspan::gallery {

namespace {

/// What is rendered, as the command line says; without options, every scene in its own size, light and dark, at each
/// scale.
struct Order {
    QString folder{};
    QString names{};
    QStringList looks{};
    QStringList scales{};
    QSize size{};
    double fontPointSize = 0;
};

[[noreturn]] void refuse(const QString& sentence)
{
    std::fprintf(stderr, "larkspan-gallery: %s\n", qPrintable(sentence));
    std::exit(2);
}

const QStringList everyLook{QStringLiteral("light"), QStringLiteral("dark"), QStringLiteral("contrast")};

QSize sizeOf(const QString& text)
{
    const auto sides = text.split(u'x');
    const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
    if (sides.size() != 2 || size.isEmpty()) refuse(text + QStringLiteral(" is no size such as 760x600"));
    return size;
}

Order orderOf(const QStringList& arguments)
{
    QCommandLineOption scenes(
        QStringLiteral("scenes"), QStringLiteral("only scenes whose names contain TEXT"), QStringLiteral("TEXT"));
    QCommandLineOption look(
        QStringLiteral("look"), QStringLiteral("light, dark or contrast; may be repeated"), QStringLiteral("LOOK"));
    look.setDefaultValues({everyLook.at(0), everyLook.at(1)});
    QCommandLineOption scale(
        QStringLiteral("scale"), QStringLiteral("pixels to a point; may be repeated"), QStringLiteral("N"));
    scale.setDefaultValues({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    QCommandLineOption size(QStringLiteral("size"), QStringLiteral("the window's size instead of the scene's"),
        QStringLiteral("WIDTHxHEIGHT"));
    QCommandLineOption font(
        QStringLiteral("font"), QStringLiteral("the font's size instead of the scene's"), QStringLiteral("POINTS"));
    QCommandLineParser parser;
    parser.addOptions({scenes, look, scale, size, font});
    if (!parser.parse(arguments)) refuse(parser.errorText());
    if (parser.positionalArguments().size() != 1) refuse(QStringLiteral("name one folder\n") + parser.helpText());
    for (const auto& named : parser.values(look)) {
        if (!everyLook.contains(named)) refuse(named + QStringLiteral(" is no look"));
    }
    return {parser.positionalArguments().constFirst(), parser.value(scenes), parser.values(look), parser.values(scale),
        parser.isSet(size) ? sizeOf(parser.value(size)) : QSize(), parser.value(font).toDouble()};
}

class Photographer {
public:
    explicit Photographer(Order order)
        : order_(std::move(order))
    {
        QDir().mkpath(order_.folder);
    }

    /// Whether a scene was rendered.
    bool takeAll()
    {
        bool tookOne = false;
        for (const auto& scene : scenes()) {
            if (!QString::fromStdString(scene.name).contains(order_.names)) continue;
            for (const auto& look : order_.looks) take(scene, look);
            tookOne = true;
        }
        // The sheet consists of many pictures; at a higher scale they take long, and are wanted only by name.
        const bool isWanted = !order_.names.isEmpty() || qGuiApp->devicePixelRatio() == 1;
        if (QStringLiteral("kit").contains(order_.names) && isWanted) {
            for (const auto& look : order_.looks) takeKit(look);
            tookOne = true;
        }
        for (const auto& icon : panelIcons()) {
            const auto name = QStringLiteral("icon-%1").arg(QString::fromStdString(icon.status));
            if (!name.contains(order_.names)) continue;
            keep(icon.picture, name, QStringLiteral("panels"));
            tookOne = true;
        }
        return tookOne;
    }

private:
    void take(const Scene& scene, const QString& name)
    {
        const ShownScene shown(scene, inOrder(ShownScene::Look::of(scene), name), main_);
        keep(shown.window().grabWindow(), QString::fromStdString(scene.name), name);
    }

    void takeKit(const QString& name)
    {
        keep(KitSheet(inOrder({}, name), main_).picture(), QStringLiteral("kit"), name);
    }

    ShownScene::Look inOrder(ShownScene::Look look, const QString& name) const
    {
        look.isDark = name == QStringLiteral("dark");
        look.hasHighContrast = look.hasHighContrast || name == QStringLiteral("contrast");
        if (order_.size.isValid()) look.size = order_.size;
        if (order_.fontPointSize > 0) look.fontPointSize = order_.fontPointSize;
        return look;
    }

    void keep(const QImage& picture, const QString& scene, const QString& look) const
    {
        const auto file
            = QStringLiteral("%1/%2-%3@%4x.png").arg(order_.folder, scene, look).arg(qGuiApp->devicePixelRatio());
        if (!picture.save(file)) qFatal("cannot write %s", qPrintable(file));
    }

    Order order_;
    adapters::MainExecutor main_;
};

/// A process has only one scale, so each scale has a process of its own.
int renderAtEachScale(const QStringList& scales, const QStringList& arguments)
{
    for (const auto& scale : scales) {
        qputenv("QT_SCALE_FACTOR", scale.toLatin1());
        const int code = QProcess::execute(QCoreApplication::applicationFilePath(), arguments);
        if (code != 0) return code;
    }
    return 0;
}

}  // namespace

}  // namespace larkspan::gallery

int main(int argc, char* argv[])
{
    // The pictures need no display, and are the same on every machine.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    larkspan::chooseRenderer();
    larkspan::gallery::chooseDesktopFonts();
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    const bool isToChooseScale = !qEnvironmentVariableIsSet("QT_SCALE_FACTOR");
    const QGuiApplication qt(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    auto order = larkspan::gallery::orderOf(arguments);
    if (isToChooseScale) return larkspan::gallery::renderAtEachScale(order.scales, arguments.mid(1));

    larkspan::gallery::useDesktopFonts();
    if (!larkspan::gallery::Photographer(std::move(order)).takeAll())
        larkspan::gallery::refuse(QStringLiteral("no scene has a name with that text"));
    return 0;
}
