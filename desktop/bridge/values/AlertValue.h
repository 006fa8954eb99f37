#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/Words.h"
#include "presentation/screens/FailureAlert.h"

namespace larkspan::bridge {

/// The alert that is up, for QML; its text is empty while there is none. Two alerts of one text differ in their
/// numbers.
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
