#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/Words.h"
#include "presentation/shapes/Link.h"

namespace larkspan::bridge {

/// `presentation::Link` for QML, without its destination: a screen reports which link was chosen, and the program opens
/// it.
struct LinkValue {
    Q_GADGET
    QML_VALUE_TYPE(link)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString subtitle MEMBER subtitle)

public:
    QString symbol{};
    QString title{};
    QString subtitle{};

    static LinkValue of(const presentation::Link& link)
    {
        return {words(link.symbol), words(link.title), words(link.subtitle)};
    }

    bool operator==(const LinkValue&) const = default;
};

}  // namespace larkspan::bridge
