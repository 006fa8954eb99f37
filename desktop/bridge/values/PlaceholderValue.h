#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "presentation/shapes/Placeholder.h"

namespace larkspan::bridge {

/// `presentation::Placeholder` for QML.
struct PlaceholderValue {
    Q_GADGET
    QML_VALUE_TYPE(placeholder)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(bool showsProgress MEMBER showsProgress)
    Q_PROPERTY(bool offersSettings MEMBER offersSettings)
    Q_PROPERTY(bool offersRetry MEMBER offersRetry)

public:
    QString symbol{};
    int tone = Tone::Secondary;
    QString title{};
    QString text{};
    bool showsProgress = false;
    bool offersSettings = false;
    bool offersRetry = false;

    static PlaceholderValue of(const presentation::Placeholder& placeholder)
    {
        return {words(placeholder.symbol), toneOf(placeholder.tone), words(placeholder.title), words(placeholder.text),
            placeholder.showsProgress, placeholder.offersSettings, placeholder.offersRetry};
    }

    bool operator==(const PlaceholderValue&) const = default;
};

}  // namespace larkspan::bridge
