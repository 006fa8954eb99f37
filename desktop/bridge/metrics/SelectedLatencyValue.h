#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

#include "bridge/values/Words.h"
#include "monitors/SelectedLatency.h"

namespace larkspan::bridge {

/// `monitors::SelectedLatency` for QML.
struct SelectedLatencyValue {
    Q_GADGET
    QML_VALUE_TYPE(selectedLatency)
    /// -1 for none.
    Q_PROPERTY(int index MEMBER index)
    /// 0 for none.
    Q_PROPERTY(double milliseconds MEMBER milliseconds)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QString time MEMBER time)
    Q_PROPERTY(QString words MEMBER words)

public:
    int index = -1;
    double milliseconds = 0;
    QString value{};
    QString time{};
    QString words{};

    static SelectedLatencyValue of(const std::optional<monitors::SelectedLatency>& selected)
    {
        if (!selected) return {};
        const auto& [point, callout] = *selected;
        return {point.index, static_cast<double>(point.value), bridge::words(callout.value),
            bridge::words(callout.time), bridge::words(callout.words())};
    }

    bool operator==(const SelectedLatencyValue&) const = default;
};

}  // namespace larkspan::bridge
