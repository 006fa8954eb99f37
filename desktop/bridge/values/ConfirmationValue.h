#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/Words.h"
#include "presentation/shapes/Confirmation.h"

namespace larkspan::bridge {

/// `presentation::Confirmation` for QML.
struct ConfirmationValue {
    Q_GADGET
    QML_VALUE_TYPE(confirmation)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString confirm MEMBER confirm)
    Q_PROPERTY(QString cancel MEMBER cancel)

public:
    QString title{};
    QString text{};
    QString confirm{};
    QString cancel{};

    static ConfirmationValue of(const presentation::Confirmation& confirmation)
    {
        return {words(confirmation.title), words(confirmation.text), words(confirmation.confirm),
            words(confirmation.cancel)};
    }

    bool operator==(const ConfirmationValue&) const = default;
};

}  // namespace larkspan::bridge
