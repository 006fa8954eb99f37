#pragma once

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/AlertValue.h"
#include "bridge/values/ConfirmationValue.h"
#include "bridge/values/Words.h"
#include "presentation/screens/GuardedScreen.h"

namespace larkspan::bridge {

/// The common part of the bridges of screens with typed text; decisions are those of `presentation::GuardedScreen`. The
/// base is named in full, and so is this class as a base, since QML's tools look for the name as it is written.
class GuardedScreenBridge : public larkspan::bridge::ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("what the bridges of screens in which one types are")
    Q_PROPERTY(bool isSaveEnabled READ isSaveEnabled NOTIFY changed)
    Q_PROPERTY(bool isCloseEnabled READ isCloseEnabled NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::AlertValue alert READ alert NOTIFY changed)
    Q_PROPERTY(bool showsDiscardConfirmation READ showsDiscardConfirmation NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ConfirmationValue discardConfirmation READ discardConfirmation CONSTANT)

public:
    bool isSaveEnabled() const { return screen_->isSaveEnabled(); }
    bool isCloseEnabled() const { return screen_->isCloseEnabled(); }
    bool isBusy() const { return !screen_->isIdle(); }
    AlertValue alert() const { return AlertValue::of(screen_->action->alert); }
    bool showsDiscardConfirmation() const { return *screen_->showDiscardConfirmation; }
    ConfirmationValue discardConfirmation() const { return ConfirmationValue::of(presentation::discardConfirmation); }

    Q_INVOKABLE void close() { screen_->close(); }
    Q_INVOKABLE void requestClose() { screen_->requestClose(); }
    Q_INVOKABLE void keepEditing() { screen_->keepEditing(); }
    Q_INVOKABLE void discardChanges() { screen_->discardChanges(); }
    Q_INVOKABLE void dismissAlert() { screen_->action->alert.dismiss(); }

protected:
    GuardedScreenBridge(
        std::shared_ptr<presentation::GuardedScreen> screen, const ScreenUpdates& updates, QObject* parent);

private:
    std::shared_ptr<presentation::GuardedScreen> screen_;
};

}  // namespace larkspan::bridge
