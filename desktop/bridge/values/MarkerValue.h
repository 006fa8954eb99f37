#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "presentation/shapes/Marker.h"

namespace larkspan::bridge {

/// `presentation::Marker` for QML.
struct MarkerValue {
    Q_GADGET
    QML_VALUE_TYPE(marker)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(int symbolTone MEMBER symbolTone)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(bool showsProgress MEMBER showsProgress)

public:
    QString symbol{};
    int symbolTone = Tone::Secondary;
    QString text{};
    int tone = Tone::Secondary;
    bool showsProgress = false;

    static MarkerValue of(const presentation::Marker& marker)
    {
        return {words(marker.symbol), toneOf(marker.symbolTone), words(marker.text), toneOf(marker.tone),
            marker.showsProgress};
    }

    bool operator==(const MarkerValue&) const = default;
};

}  // namespace larkspan::bridge
