#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "presentation/shapes/ActionButton.h"

namespace larkspan::bridge {

/// `presentation::ActionButton` for QML.
struct ActionButtonValue {
    Q_GADGET
    QML_VALUE_TYPE(actionButton)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(bool isProminent MEMBER isProminent)
    Q_PROPERTY(bool isPaired MEMBER isPaired)
    Q_PROPERTY(bool isApart MEMBER isApart)
    Q_PROPERTY(bool isEnabled MEMBER isEnabled)

public:
    QString id{};
    QString label{};
    QString symbol{};
    int tone = Tone::Primary;
    bool isProminent = false;
    bool isPaired = false;
    bool isApart = false;
    bool isEnabled = false;

    static ActionButtonValue of(const presentation::ActionButton& button)
    {
        return {wholeText(button.id), words(button.label), words(button.symbol), toneOf(button.tone),
            button.isProminent, button.isPaired, button.isApart, button.isEnabled};
    }

    bool operator==(const ActionButtonValue&) const = default;
};

}  // namespace larkspan::bridge
