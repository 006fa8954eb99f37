// Measures the cost of a day of latency on the screen: painting a graph of 1,440 samples, and moving its selection from
// sample to sample, from the new value to the frame that shows it.
//
// usage: larkspan-bench-graph WIDTH HEIGHT TIMES     prints two medians in milliseconds

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

#include "Arguments.h"
#include "account/MonitorMetrics.h"
#include "bridge/metrics/LatencyPlotItem.h"
#include "bridge/metrics/SelectedLatencyValue.h"
#include "fakes/FakeLocaleText.h"
#include "qml/Renderer.h"
#include "service/WallClock.h"

namespace {

using namespace larkspan;

std::shared_ptr<const monitors::LatencyCurve> dayOfMinutes()
{
    simulator::Monitor monitor;
    monitor.id = "bench";
    monitor.samplesPerWindow = 1'440;
    std::vector<monitors::LatencyDataPoint> points;
    const auto metrics = simulator::metricsOf(monitor, std::chrono::hours(24), simulator::wallClock().now());
    for (const auto& sample : metrics.samples)
        points.push_back({static_cast<int>(points.size()), sample.milliseconds, sample.time});
    return monitors::LatencyCurve::of(std::move(points));
}

bridge::SelectedLatencyValue selectionOf(const monitors::LatencyCurve& curve, int selected)
{
    static const fakes::FakeLocaleText locale;
    return bridge::SelectedLatencyValue::of(monitors::SelectedLatency::of(curve, selected, locale));
}

template <typename Work>
double medianOf(std::size_t times, Work work)
{
    std::vector<double> taken;
    QElapsedTimer timer;
    for (std::size_t count = 0; count < times; ++count) {
        timer.start();
        work(count);
        taken.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    const auto middle = taken.begin() + static_cast<std::ptrdiff_t>(times / 2);
    std::ranges::nth_element(taken, middle);
    return *middle;
}

double paintingOf(QSizeF size, std::size_t times)
{
    const auto scale = qGuiApp->devicePixelRatio();
    bridge::LatencyPlotItem plot;
    plot.setSize(size);
    plot.setProperty("curve", QVariant::fromValue(bridge::LatencyCurveValue{dayOfMinutes()}));
    plot.setProperty("lineColor", QColor(Qt::blue));
    plot.setProperty("areaColor", QColor(0, 0, 255, 25));
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    return medianOf(times, [&](std::size_t) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(scale, scale);
        plot.paint(&painter);
    });
}

/// Draws one frame now, as the next turn of the display would.
void draw(QQuickWindow& window)
{
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &request);
}

double selectingIn(QSizeF size, std::size_t times)
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick\nimport Larkspan.Bridge\nimport Larkspan.Bridge.Metrics\nimport Larkspan.Monitors\n"
        "Window {\nid: window\nproperty latencyCurve curve\nproperty selectedLatency selection\n"
        "LatencyGraph {\ny: 60; width: window.width; height: window.height - 60\n"
        "curve: window.curve; selection: window.selection\n}\n}",
        {});
    const std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow*>(component.create()));
    if (!window) throw std::runtime_error(component.errorString().toStdString());
    window->resize(size.toSize() + QSize(0, 60));
    window->show();
    while (!window->isExposed()) QCoreApplication::processEvents();

    const auto curve = dayOfMinutes();
    window->setProperty("curve", QVariant::fromValue(bridge::LatencyCurveValue{curve}));
    return medianOf(times, [&](std::size_t count) {
        const auto selected = static_cast<int>(count * 7) % curve->count();
        window->setProperty("selection", QVariant::fromValue(selectionOf(*curve, selected)));
        draw(*window);
    });
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fputs("usage: larkspan-bench-graph WIDTH HEIGHT TIMES\n", stderr);
        return 2;
    }
    chooseRenderer();
    const QGuiApplication qt(argc, argv);
    try {
        const QSizeF size(static_cast<double>(bench::number(argv[1])), static_cast<double>(bench::number(argv[2])));
        const auto times = std::max<std::size_t>(bench::number(argv[3]), 1);
        std::printf("%.4f %.4f\n", paintingOf(size, times), selectingIn(size, times));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-graph: %s\n", error.what());
        return 1;
    }
    return 0;
}
