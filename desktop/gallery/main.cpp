#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QQuickWindow>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <stop_token>

#include "adapters/MainExecutor.h"
#include "adapters/QtTimers.h"
#include "adapters/SystemClock.h"
#include "api/KestruneAPI.h"
#include "gallery/Scene.h"
#include "qml/MainWindow.h"

namespace larkspan::gallery {

namespace {

/// Nothing outside: the scenes set the account's state themselves.
struct NoOutside final : platform::HttpTransport,
                         platform::CredentialStore,
                         platform::NotificationCenter,
                         platform::NetworkPathMonitor {
    void send(platform::HttpRequest, std::stop_token, support::UniqueFunction<void(Result)>) override {}
    std::optional<std::string> find(const platform::CredentialItem&) override { return std::nullopt; }
    bool add(const platform::CredentialItem&, const std::string&) override { return false; }
    void remove(const platform::CredentialItem&) override {}
    void allowPromptAgain() override {}
    void requestAuthorization() override {}
    void add(const platform::NotificationRequest&) override {}
    void start(std::function<void(bool)>) override {}
};

void settle()
{
    // Long enough for a few frames; there is no motion to wait for.
    QEventLoop loop;
    QTimer::singleShot(80, &loop, &QEventLoop::quit);
    loop.exec();
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

        auto state = core::AppStateManager::make({main_, timers_, clock_, outside_, outside_, api_});
        scene.arrange(*state);
        auto dashboard
            = std::make_shared<workspace::Dashboard>(workspace::Dashboard::Ports{timers_, clock_, outside_, state});
        MainWindow mainWindow(dashboard, main_);
        mainWindow.appearance().setProperty("isDark", isDark);
        mainWindow.appearance().setProperty("reducesMotion", true);
        mainWindow.window().resize(scene.width, scene.height);
        mainWindow.window().show();
        settle();

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
    adapters::QtTimers timers_;
    adapters::SystemClock clock_;
    NoOutside outside_;
    api::KestruneAPI api_{{main_, outside_, outside_, clock_}, "kestrune.example"};
};

}  // namespace

}  // namespace larkspan::gallery

int main(int argc, char* argv[])
{
    // A process has one scale, so the second one gets a process of its own.
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        for (const char* scale : {"1", "2"}) {
            qputenv("QT_SCALE_FACTOR", scale);
            const int code = QProcess::execute(QString::fromLocal8Bit(argv[0]), QStringList(argv + 1, argv + argc));
            if (code != 0) return code;
        }
        return 0;
    }

    // The pictures need no display, and are the same wherever they are made.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
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
