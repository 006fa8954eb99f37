#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/ToneNames.h"
#include "bridge/values/Words.h"
#include "workspace/ActivityRow.h"

namespace larkspan::bridge {

/// `workspace::ActivityRow` for QML.
struct ActivityRowValue {
    Q_GADGET
    QML_VALUE_TYPE(activityRow)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(int tone MEMBER tone)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString caption MEMBER caption)

public:
    using Row = workspace::ActivityRow;

    QString symbol{};
    int tone = Tone::Secondary;
    QString title{};
    QString caption{};

    static ActivityRowValue of(const Row& row)
    {
        return {words(row.symbol), toneOf(row.tone), words(row.title), words(row.caption)};
    }

    bool operator==(const ActivityRowValue&) const = default;
};

}  // namespace larkspan::bridge
