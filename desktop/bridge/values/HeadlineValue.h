#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "presentation/shapes/Headline.h"

namespace larkspan::bridge {

/// `presentation::Headline` for QML.
struct HeadlineValue {
    Q_GADGET
    QML_VALUE_TYPE(headline)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString details MEMBER details)

public:
    QString symbol{};
    int tone = Tone::Secondary;
    QString title{};
    QString details{};

    static HeadlineValue of(const presentation::Headline& headline)
    {
        return {words(headline.symbol), toneOf(headline.tone), words(headline.title), words(headline.details)};
    }

    bool operator==(const HeadlineValue&) const = default;
};

}  // namespace larkspan::bridge
