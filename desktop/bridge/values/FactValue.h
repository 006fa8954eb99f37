#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "presentation/shapes/Fact.h"

namespace larkspan::bridge {

/// `presentation::Fact` for QML, without the destination of its link.
struct FactValue {
    Q_GADGET
    QML_VALUE_TYPE(fact)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(bool isLink MEMBER isLink)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString explanation MEMBER explanation)
    Q_PROPERTY(bool hasSmallLabel MEMBER hasSmallLabel)

public:
    QString label{};
    QString text{};
    int tone = Tone::Secondary;
    bool isLink = false;
    QString caption{};
    QString symbol{};
    QString explanation{};
    bool hasSmallLabel = false;

    static FactValue of(const presentation::Fact& fact)
    {
        return {words(fact.label), words(fact.text), toneOf(fact.tone), !fact.destination.empty(), words(fact.caption),
            words(fact.symbol), words(fact.explanation), fact.hasSmallLabel};
    }

    bool operator==(const FactValue&) const = default;
};

}  // namespace larkspan::bridge
