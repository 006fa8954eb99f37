#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ScreenBridge.h"
#include "bridge/workspace/UpdateReportValue.h"
#include "core/UpdaterController.h"

namespace larkspan::bridge {

/// The dialog about updates; texts are those of `workspace::UpdateReport`.
class UpdateReportBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isShowing READ isShowing NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::UpdateReportValue report READ report NOTIFY changed)

public:
    UpdateReportBridge(
        std::shared_ptr<core::UpdaterController> controller, const ScreenUpdates& updates, QObject* parent = nullptr);

    bool isShowing() const { return *controller_->isShowing; }
    UpdateReportValue report() const
    {
        return UpdateReportValue::of(workspace::UpdateReport::of(*controller_->finding));
    }

    Q_INVOKABLE void dismiss() { controller_->dismiss(); }

private:
    std::shared_ptr<core::UpdaterController> controller_;
};

}  // namespace larkspan::bridge
