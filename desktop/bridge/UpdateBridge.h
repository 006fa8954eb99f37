#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/ChangeNotice.h"
#include "core/UpdaterController.h"
#include "support/Observable.h"
#include "workspace/UpdateReport.h"

namespace larkspan::bridge {

/// What the dialog about updates shows; worded by `workspace::UpdateReport`.
class UpdateBridge : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isShowing READ isShowing NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool showsProgress READ showsProgress NOTIFY changed)

public:
    UpdateBridge(std::shared_ptr<core::UpdaterController> updates, platform::Executor& main, QObject* parent = nullptr);

    bool isShowing() const { return *updates_->isShowing; }
    QString title() const { return QString::fromStdString(report().title); }
    QString text() const { return QString::fromStdString(report().text); }
    bool showsProgress() const { return report().showsProgress; }

    Q_INVOKABLE void dismiss() { updates_->dismiss(); }

signals:
    void changed();

private:
    workspace::UpdateReport report() const { return workspace::UpdateReport::of(*updates_->finding); }

    std::shared_ptr<core::UpdaterController> updates_;
    ChangeNotice notice_;
    support::Subscription subscription_;
};

}  // namespace larkspan::bridge
