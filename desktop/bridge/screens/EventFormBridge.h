#pragma once

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ComponentSelectionBridge.h"
#include "bridge/screens/GuardedScreenBridge.h"
#include "presentation/forms/EventForm.h"

namespace larkspan::bridge {

/// The common part of the bridges of all events' forms; texts and decisions are those of `presentation::EventForm`.
class EventFormBridge : public larkspan::bridge::GuardedScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("what the forms of all events are")
    Q_PROPERTY(larkspan::bridge::ComponentSelectionBridge* selection READ selection CONSTANT)
    Q_PROPERTY(QString busyText READ busyText CONSTANT)

public:
    ComponentSelectionBridge* selection() { return &selection_; }
    QString busyText() const { return words(presentation::EventForm::busyText); }

    Q_INVOKABLE void editTitle(const QString& text) { form_->title = text.toStdString(); }
    Q_INVOKABLE void editMessage(const QString& text) { form_->message = text.toStdString(); }
    Q_INVOKABLE void save() { form_->save(); }

protected:
    EventFormBridge(std::shared_ptr<presentation::EventForm> form, const ScreenUpdates& updates, QObject* parent);

private:
    std::shared_ptr<presentation::EventForm> form_;
    ComponentSelectionBridge selection_;
};

}  // namespace larkspan::bridge
