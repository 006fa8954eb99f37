#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/values/Words.h"
#include "monitors/LatencyGraph.h"

namespace larkspan::bridge {

/// `monitors::LatencyGraph` for QML; also carries the curve to the item that draws it.
struct LatencyGraphValue {
    Q_GADGET
    QML_VALUE_TYPE(latencyGraph)
    Q_PROPERTY(bool isShown READ isShown)
    /// -1 for none.
    Q_PROPERTY(int selectedIndex MEMBER selectedIndex)
    /// The value of the selected sample in milliseconds; 0 for none.
    Q_PROPERTY(double selectedValue MEMBER selectedValue)
    Q_PROPERTY(double lowestValue MEMBER lowestValue)
    Q_PROPERTY(double highestValue MEMBER highestValue)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QString time MEMBER time)
    Q_PROPERTY(QString words MEMBER words)

public:
    std::shared_ptr<const monitors::LatencyCurve> curve{};
    int selectedIndex = -1;
    double selectedValue = 0;
    double lowestValue = 0;
    double highestValue = 0;
    QString value{};
    QString time{};
    QString words{};

    bool isShown() const { return curve != nullptr; }

    static LatencyGraphValue of(const monitors::LatencyGraph& graph);

    bool operator==(const LatencyGraphValue&) const = default;
};

}  // namespace larkspan::bridge
