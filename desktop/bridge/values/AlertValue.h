#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/Words.h"
#include "presentation/screens/FailureAlert.h"

namespace larkspan::bridge {

/// The current alert for QML; its text is empty if there is none. Two alerts with the same text have different numbers.
struct AlertValue {
    Q_GADGET
    QML_VALUE_TYPE(alert)
    Q_PROPERTY(int number MEMBER number)
    Q_PROPERTY(QString text MEMBER text)

public:
    int number = 0;
    QString text{};

    static AlertValue of(const presentation::FailureAlert& alert) { return {alert.number(), words(alert.words())}; }

    bool operator==(const AlertValue&) const = default;
};

}  // namespace larkspan::bridge
