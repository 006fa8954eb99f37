#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/DateTimePickerBridge.h"
#include "bridge/screens/EventFormBridge.h"
#include "bridge/values/MarkerValue.h"
#include "maintenances/CreateMaintenanceView.h"

namespace larkspan::bridge {

/// The form of a new maintenance for QML; texts and decisions are those of `maintenances::CreateMaintenanceView`.
class CreateMaintenanceBridge : public larkspan::bridge::EventFormBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(larkspan::bridge::DateTimePickerBridge* scheduledFor READ scheduledFor CONSTANT)
    Q_PROPERTY(larkspan::bridge::DateTimePickerBridge* scheduledUntil READ scheduledUntil CONSTANT)
    Q_PROPERTY(larkspan::bridge::MarkerValue length READ length NOTIFY changed)

public:
    CreateMaintenanceBridge(const std::shared_ptr<maintenances::CreateMaintenanceView>& view,
        const ScreenUpdates& updates, QObject* parent = nullptr);

    DateTimePickerBridge* scheduledFor() { return &scheduledFor_; }
    DateTimePickerBridge* scheduledUntil() { return &scheduledUntil_; }
    MarkerValue length() const { return MarkerValue::of(view_->length()); }

private:
    std::shared_ptr<maintenances::CreateMaintenanceView> view_;
    DateTimePickerBridge scheduledFor_;
    DateTimePickerBridge scheduledUntil_;
};

}  // namespace larkspan::bridge
