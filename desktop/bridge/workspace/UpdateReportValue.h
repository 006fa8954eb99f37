#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "bridge/values/Words.h"
#include "workspace/UpdateReport.h"

namespace larkspan::bridge {

/// `workspace::UpdateReport` for QML.
struct UpdateReportValue {
    Q_GADGET
    QML_VALUE_TYPE(updateReport)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(bool showsProgress MEMBER showsProgress)
    Q_PROPERTY(QString closeLabel MEMBER closeLabel)

public:
    QString title{};
    QString text{};
    bool showsProgress = false;
    QString closeLabel{};

    static UpdateReportValue of(const workspace::UpdateReport& report)
    {
        return {words(report.title), words(report.text), report.showsProgress, words(report.closeLabel)};
    }

    bool operator==(const UpdateReportValue&) const = default;
};

}  // namespace larkspan::bridge
