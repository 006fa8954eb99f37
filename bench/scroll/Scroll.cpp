// Measures the cost of a frame while a list of many rows scrolls, as with a touchpad: the window's list
// of status pages, a page's list of incidents, of components or of monitors with all their metrics open, or a bare list
// that draws the same items.
//
// usage: larkspan-bench-scroll pages|incidents|components|monitors|bare ROWS
//                                          prints the median and the 95th percentile in milliseconds
//        larkspan-bench-scroll opening ROWS
//                                          prints the time from the choice of a page's incidents to their
//                                          first rows on screen, including the answer

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include "Arguments.h"
#include "Client.h"
#include "account/Seed.h"
#include "adapters/MainExecutor.h"
#include "components/ComponentRow.h"
#include "components/StatusPageComponentsView.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "incidents/StatusPageIncidentsView.h"
#include "monitors/MonitorRowView.h"
#include "monitors/StatusPageMonitorsView.h"
#include "qml/MainWindow.h"
#include "qml/Renderer.h"
#include "service/WallClock.h"
#include "workspace/StatusPageDetailView.h"

namespace {

using namespace larkspan;

constexpr QSize size(1200, 800);
constexpr int frames = 600;
constexpr int warmUp = 60;
constexpr int openings = 9;
/// In points for each frame: no multiple of a row's height, so that rows appear and disappear in each frame.
constexpr double step = 37;

simulator::Account accountWithPages(std::size_t pages)
{
    return simulator::seededAccount(pages, simulator::wallClock().now());
}

/// All of its incidents are of its first page.
simulator::Account accountWithIncidents(std::size_t incidents)
{
    auto account = accountWithPages(10);
    account.incidents.clear();
    for (std::size_t count = 0; count < incidents; ++count) {
        simulator::Incident incident;
        incident.id = "incident-" + std::to_string(count);
        incident.title = "Login errors for the customers of region " + std::to_string(count);
        incident.createdAt = simulator::wallClock().now();
        incident.severityName = "minor";
        incident.statusPageId = account.statusPages.front().id;
        account.incidents.push_back(std::move(incident));
    }
    return account;
}

/// All of its components are of its first page, in groups of sixteen; with their headings they are that many rows.
simulator::Account accountWithComponents(std::size_t rows)
{
    auto account = accountWithPages(10);
    account.components.clear();
    account.componentGroups.clear();
    for (std::size_t row = 0; row < rows; ++row) {
        const auto id = std::to_string(row);
        if (row % 17 == 0) {
            account.componentGroups.push_back(
                {.id = id, .name = "Region " + id, .statusPageId = account.statusPages.front().id});
            continue;
        }
        simulator::Component component;
        component.id = id;
        component.name = "Sign-in of region " + id;
        component.description = "For all of its customers";
        component.state = row % 5 == 0 ? "degraded" : "up";
        component.groupId = account.componentGroups.back().id;
        component.statusPageId = account.statusPages.front().id;
        account.components.push_back(std::move(component));
    }
    return account;
}

/// All of its monitors are of its first page, each with a day of metrics.
simulator::Account accountWithMonitors(std::size_t monitors)
{
    auto account = accountWithPages(10);
    account.monitors.clear();
    for (std::size_t count = 0; count < monitors; ++count) {
        simulator::Monitor monitor;
        monitor.id = "monitor-" + std::to_string(count);
        monitor.name = "Sign-in of region " + std::to_string(count);
        monitor.type = "http";
        monitor.state = "up";
        monitor.statusPageId = account.statusPages.front().id;
        account.monitors.push_back(std::move(monitor));
    }
    return account;
}

/// The program's window over an account.
class ProgramsWindow : support::Observable {
public:
    explicit ProgramsWindow(simulator::Account account)
        : client_(std::move(account), main_, main_)
    {
        client_.state().refreshNow();
        while (!client_.state().lastRefresh->has_value()) QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    QQuickWindow& window() { return mainWindow_.window(); }

    /// Opens the first page and waits until its incidents are shown.
    void openIncidents(std::size_t count)
    {
        auto& page = openedAt(Tab::incidents);
        while (page.incidents()->viewModel->incidents->size() != count) QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    /// The same with its components, and the headings of their groups.
    void openComponents(std::size_t rows)
    {
        auto& page = openedAt(Tab::components);
        while (page.components()->rows().size() != rows) QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    /// The same with its monitors, and opens the metrics of each.
    void openMonitors(std::size_t count)
    {
        const auto view = openedAt(Tab::monitors).monitors();
        while (view->viewModel->monitors->size() != count) QCoreApplication::processEvents();
        for (const auto& monitor : *view->viewModel->monitors) view->toggleMetrics(monitor.id);
        const auto isLoaded = [](const auto& row) { return row.second->showsPanel(); };
        while (!std::ranges::all_of(view->rowViews(), isLoaded)) QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

private:
    using Tab = workspace::StatusPageDetailView::Tab;

    workspace::StatusPageDetailView& openedAt(Tab tab)
    {
        dashboard_->openPage(client_.state().statusPages->front().id);
        auto& page = **dashboard_->openedPage;
        page.select(Tab::overview);
        page.select(tab);
        return page;
    }

    adapters::MainExecutor main_;
    bench::Client client_;
    api::APIKeyStore keys_{main_, client_.store()};
    fakes::FakeLinkOpener links_;
    fakes::FakeLocaleText locale_;
    fakes::FakeUpdater updater_;
    workspace::AboutKestruneView about_{workspace::AboutKestruneView::Bundle(), links_};
    support::Published<bool> showingAbout_{*this, false};
    bridge::StatusMenuBridge menu_{[] {}};
    std::shared_ptr<workspace::DashboardView> dashboard_
        = std::make_shared<workspace::DashboardView>(workspace::DashboardView::Ports{main_, client_.timers(),
            client_.clock(), client_.store(), keys_, client_.sharedState(), locale_, links_, client_.api()});
    MainWindow mainWindow_{
        {dashboard_, std::make_shared<core::UpdaterController>(updater_), about_, showingAbout_, *this, menu_}, main_};
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

void expose(QQuickWindow& window)
{
    window.resize(size);
    window.show();
    while (!window.isExposed()) QCoreApplication::processEvents();
}

void measure(QQuickWindow& window, int rows)
{
    expose(window);
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

void measureOpening(ProgramsWindow& programs, std::size_t rows)
{
    expose(programs.window());
    std::vector<double> taken;
    QElapsedTimer timer;
    // The first one fetches the answers that the transport then remembers.
    for (int count = 0; count <= openings; ++count) {
        timer.start();
        programs.openIncidents(rows);
        draw(programs.window());
        if (count > 0) taken.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(taken);
    std::printf("%.4f\n", taken[taken.size() / 2]);
}

void measureBare(int rows)
{
    QQmlApplicationEngine engine;
    engine.setInitialProperties({{QStringLiteral("rows"), rows}});
    engine.load(QUrl(QStringLiteral("qrc:/BareList.qml")));
    if (engine.rootObjects().isEmpty()) throw std::runtime_error("the bare list does not load");
    measure(*qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst()), rows);
}

void measureKind(std::string_view kind, std::size_t rows)
{
    if (kind == "bare") {
        measureBare(static_cast<int>(rows));
    } else if (kind == "pages") {
        ProgramsWindow programs(accountWithPages(rows));
        measure(programs.window(), static_cast<int>(rows));
    } else if (kind == "incidents" || kind == "opening") {
        ProgramsWindow programs(accountWithIncidents(rows));
        if (kind == "opening") return measureOpening(programs, rows);
        programs.openIncidents(rows);
        measure(programs.window(), static_cast<int>(rows));
    } else if (kind == "components") {
        ProgramsWindow programs(accountWithComponents(rows));
        programs.openComponents(rows);
        measure(programs.window(), static_cast<int>(rows));
    } else if (kind == "monitors") {
        ProgramsWindow programs(accountWithMonitors(rows));
        programs.openMonitors(rows);
        measure(programs.window(), static_cast<int>(rows));
    } else {
        throw std::runtime_error("there is nothing of that kind to measure");
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: larkspan-bench-scroll pages|incidents|components|monitors|bare|opening ROWS\n", stderr);
        return 2;
    }
    chooseRenderer();
    const QGuiApplication qt(argc, argv);
    try {
        measureKind(argv[1], bench::number(argv[2]));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-scroll: %s\n", error.what());
        return 1;
    }
    return 0;
}
