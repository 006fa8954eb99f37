#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "presentation/shapes/Pill.h"

namespace larkspan::bridge {

/// `presentation::Pill` for QML.
struct PillValue {
    Q_GADGET
    QML_VALUE_TYPE(pill)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(QString symbol MEMBER symbol)

public:
    QString text{};
    int tone = Tone::Gray;
    QString symbol{};

    static PillValue of(const presentation::Pill& pill)
    {
        return {words(pill.text), toneOf(pill.tone), words(pill.symbol)};
    }

    bool operator==(const PillValue&) const = default;
};

}  // namespace larkspan::bridge
