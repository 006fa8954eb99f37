#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/EventFormBridge.h"
#include "incidents/CreateIncidentView.h"

namespace larkspan::bridge {

/// The form of a new incident for QML; texts and decisions are those of `incidents::CreateIncidentView`.
class CreateIncidentBridge : public larkspan::bridge::EventFormBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool notifySubscribers READ notifySubscribers NOTIFY changed)

public:
    CreateIncidentBridge(
        std::shared_ptr<incidents::CreateIncidentView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    bool notifySubscribers() const { return *view_->notifySubscribers; }

    Q_INVOKABLE void toggleNotifySubscribers() { view_->notifySubscribers = !notifySubscribers(); }

private:
    std::shared_ptr<incidents::CreateIncidentView> view_;
};

}  // namespace larkspan::bridge
