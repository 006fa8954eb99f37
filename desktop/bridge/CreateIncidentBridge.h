#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/EventFormBridge.h"
#include "incidents/CreateIncidentView.h"

namespace larkspan::bridge {

/// The form of a new incident for QML; worded and decided by `incidents::CreateIncidentView`.
class CreateIncidentBridge : public larkspan::bridge::EventFormBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool notifySubscribers READ notifySubscribers WRITE setNotifySubscribers NOTIFY changed)

public:
    CreateIncidentBridge(
        std::shared_ptr<incidents::CreateIncidentView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    bool notifySubscribers() const { return *view_->notifySubscribers; }
    void setNotifySubscribers(bool wanted) { view_->notifySubscribers = wanted; }

private:
    std::shared_ptr<incidents::CreateIncidentView> view_;
};

}  // namespace larkspan::bridge
