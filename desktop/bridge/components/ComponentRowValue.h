#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/PillValue.h"
#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "components/ComponentRow.h"

namespace larkspan::bridge {

/// `components::ComponentRow` for QML.
struct ComponentRowValue {
    Q_GADGET
    QML_VALUE_TYPE(componentRow)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(bool isHeading MEMBER isHeading)
    Q_PROPERTY(bool followsComponent MEMBER followsComponent)
    Q_PROPERTY(bool precedesComponent MEMBER precedesComponent)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(QString description MEMBER description)
    Q_PROPERTY(larkspan::bridge::PillValue status MEMBER status)

public:
    using Row = components::ComponentRow;

    QString id{};
    QString title{};
    bool isHeading = false;
    bool followsComponent = false;
    bool precedesComponent = false;
    QString symbol{};
    int tone = Tone::Gray;
    QString description{};
    PillValue status{};

    static ComponentRowValue of(const Row& row)
    {
        return {wholeText(row.id), words(row.title), row.isHeading, row.followsComponent, row.precedesComponent,
            words(row.symbol), toneOf(row.tone), words(row.description), PillValue::of(row.status)};
    }

    bool operator==(const ComponentRowValue&) const = default;
};

}  // namespace larkspan::bridge
