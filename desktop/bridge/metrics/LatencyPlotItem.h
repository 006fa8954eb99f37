#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

#include "bridge/metrics/LatencyCurveValue.h"

namespace larkspan::bridge {

/// Line and area of a latency graph, painted again only when they change, and the places of its samples. The selection
/// is shown by other items over it.
class LatencyPlotItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(LatencyPlot)
    Q_PROPERTY(larkspan::bridge::LatencyCurveValue curve MEMBER curve_ NOTIFY curveChanged)
    /// -1 for none.
    Q_PROPERTY(int selectedIndex MEMBER selectedIndex_ NOTIFY selectedIndexChanged)
    Q_PROPERTY(QColor lineColor MEMBER lineColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor areaColor MEMBER areaColor_ NOTIFY lookChanged)
    Q_PROPERTY(double lineWidth MEMBER lineWidth_ NOTIFY lookChanged)
    Q_PROPERTY(double inset MEMBER inset_ NOTIFY lookChanged)
    Q_PROPERTY(double cornerRadius MEMBER cornerRadius_ NOTIFY lookChanged)
    /// The place of the selected sample.
    Q_PROPERTY(double selectedX READ selectedX NOTIFY selectedXChanged)

public:
    explicit LatencyPlotItem(QQuickItem* parent = nullptr);

    double selectedX() const;

    /// Selects the sample that is nearest to a pointer at `x`.
    Q_INVOKABLE void point(double x);
    /// Moves the selection as the key does; returns false if the key has no meaning here.
    Q_INVOKABLE bool move(int key);
    /// The left edge of the selected sample's callout.
    Q_INVOKABLE double calloutLeft(double selectedX, double calloutWidth) const;

    void paint(QPainter* painter) override;

signals:
    void curveChanged();
    void selectedIndexChanged();
    void lookChanged();
    void selectedXChanged();
    /// Emitted when a place on the axis of indexes is chosen.
    void selected(double position);

private:
    int count() const { return curve_.curve ? curve_.curve->count() : 0; }
    double plotWidth() const { return width() - 2 * inset_; }

    LatencyCurveValue curve_;
    int selectedIndex_ = -1;
    QColor lineColor_;
    QColor areaColor_;
    double lineWidth_ = 2;
    double inset_ = 0;
    double cornerRadius_ = 0;
};

}  // namespace larkspan::bridge
