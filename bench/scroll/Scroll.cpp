// Measures what a frame costs while a list of many rows scrolls, as a hand on a touchpad scrolls it: the window's list
// of status pages, or a bare list that draws the same things.
//
// usage: larkspan-bench-scroll window|bare ROWS     prints the median and the 95th percentile in milliseconds

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "Arguments.h"
#include "Client.h"
#include "account/Seed.h"
#include "adapters/MainExecutor.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "qml/MainWindow.h"
#include "qml/Renderer.h"
#include "service/WallClock.h"

namespace {

using namespace larkspan;

constexpr QSize size(1200, 800);
constexpr int frames = 600;
constexpr int warmUp = 60;
/// Points from frame to frame: no multiple of a row's height, so that each frame has rows that come and go.
constexpr double step = 37;

/// The program's window over an account with so many pages.
class ProgramsWindow : support::Observable {
public:
    explicit ProgramsWindow(std::size_t rows)
        : client_(simulator::seededAccount(rows, simulator::wallClock().now()), main_, main_)
    {
        client_.state().refreshNow();
        while (client_.state().statusPages->size() != rows) QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    QQuickWindow& window() { return mainWindow_.window(); }

private:
    adapters::MainExecutor main_;
    bench::Client client_;
    api::APIKeyStore keys_{main_, client_.store()};
    fakes::FakeLinkOpener links_;
    fakes::FakeLocaleText locale_;
    fakes::FakeUpdater updater_;
    workspace::AboutKestruneView about_{workspace::AboutKestruneView::Bundle(), links_};
    support::Published<bool> showingAbout_{*this, false};
    bridge::MenuBridge menu_{[] {}};
    MainWindow mainWindow_{
        {std::make_shared<workspace::Dashboard>(workspace::Dashboard::Ports{main_, client_.timers(), client_.clock(),
             client_.store(), keys_, client_.sharedState(), locale_, links_, client_.api()}),
            std::make_shared<core::UpdaterController>(updater_), about_, showingAbout_, *this, menu_},
        main_};
};

QQuickItem& listIn(const QQuickWindow& window, int rows)
{
    for (auto* const item : window.findChildren<QQuickItem*>()) {
        if (item->inherits("QQuickListView") && item->property("count").toInt() == rows) return *item;
    }
    throw std::runtime_error("the window has no such list");
}

/// Draws one frame now, as the next turn of the display would.
void draw(QQuickWindow& window)
{
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &request);
}

void measure(QQuickWindow& window, int rows)
{
    window.resize(size);
    window.show();
    while (!window.isExposed()) QCoreApplication::processEvents();
    auto& list = listIn(window, rows);

    std::vector<double> taken;
    QElapsedTimer timer;
    for (int frame = 0; frame < warmUp + frames; ++frame) {
        timer.start();
        list.setProperty("contentY", list.property("contentY").toDouble() + step);
        draw(window);
        const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        if (frame >= warmUp) taken.push_back(milliseconds);
        QCoreApplication::processEvents();
    }
    std::ranges::sort(taken);
    std::printf("%.4f %.4f\n", taken[taken.size() / 2], taken[taken.size() * 95 / 100]);
}

void measureBare(int rows)
{
    QQmlApplicationEngine engine;
    engine.setInitialProperties({{QStringLiteral("rows"), rows}});
    engine.load(QUrl(QStringLiteral("qrc:/BareList.qml")));
    if (engine.rootObjects().isEmpty()) throw std::runtime_error("the bare list does not load");
    measure(*qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst()), rows);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: larkspan-bench-scroll window|bare ROWS\n", stderr);
        return 2;
    }
    chooseRenderer();
    const QGuiApplication qt(argc, argv);
    try {
        const auto rows = bench::number(argv[2]);
        if (std::string_view(argv[1]) == "bare") {
            measureBare(static_cast<int>(rows));
        } else {
            ProgramsWindow programs(rows);
            measure(programs.window(), static_cast<int>(rows));
        }
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-scroll: %s\n", error.what());
        return 1;
    }
    return 0;
}
