#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/Words.h"
#include "presentation/shapes/Choice.h"

namespace larkspan::bridge {

/// `presentation::Choice` for QML.
struct ChoiceValue {
    Q_GADGET
    QML_VALUE_TYPE(choice)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)

public:
    QString id{};
    QString name{};

    static ChoiceValue of(const presentation::Choice& choice) { return {wholeText(choice.id), words(choice.name)}; }

    bool operator==(const ChoiceValue&) const = default;
};

}  // namespace larkspan::bridge
