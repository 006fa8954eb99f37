#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/PillValue.h"
#include "bridge/values/Words.h"
#include "maintenances/MaintenanceRow.h"

namespace larkspan::bridge {

/// `maintenances::MaintenanceRow` for QML.
struct MaintenanceRowValue {
    Q_GADGET
    QML_VALUE_TYPE(maintenanceRow)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(larkspan::bridge::PillValue status MEMBER status)
    Q_PROPERTY(QString date MEMBER date)

public:
    using Row = maintenances::MaintenanceRow;

    QString id{};
    QString title{};
    PillValue status{};
    QString date{};

    static MaintenanceRowValue of(const Row& row)
    {
        return {wholeText(row.id), words(row.title), PillValue::of(row.status), words(row.date)};
    }

    bool operator==(const MaintenanceRowValue&) const = default;
};

}  // namespace larkspan::bridge
