#pragma once

#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/ActionButtonValue.h"
#include "bridge/values/AlertValue.h"
#include "bridge/values/FactValue.h"
#include "bridge/values/PillValue.h"
#include "bridge/values/Words.h"
#include "monitors/MonitorDetailView.h"

namespace larkspan::bridge {

/// One monitor for QML; texts and decisions are those of `monitors::MonitorDetailView`.
class MonitorDetailBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::PillValue> pills MEMBER pills_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::FactValue> details MEMBER details_ NOTIFY changed)
    /// Without a text if no check is known.
    Q_PROPERTY(larkspan::bridge::FactValue lastCheck MEMBER lastCheck_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::ActionButtonValue> buttons MEMBER buttons_ NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::AlertValue alert READ alert NOTIFY changed)

public:
    MonitorDetailBridge(
        std::shared_ptr<monitors::MonitorDetailView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    QString title() const { return words(monitors::MonitorDetailView::title); }
    QString name() const { return nameWords(view_->currentMonitor->name); }
    bool isBusy() const { return view_->isBusy(); }
    AlertValue alert() const { return AlertValue::of(view_->action->alert); }

    Q_INVOKABLE void press(const QString& button) { view_->press(button.toStdString()); }
    Q_INVOKABLE void openURL() { view_->openURL(); }
    Q_INVOKABLE void dismissAlert() { view_->action->alert.dismiss(); }

private:
    void readState() override;

    std::shared_ptr<monitors::MonitorDetailView> view_;
    QList<PillValue> pills_;
    QList<FactValue> details_;
    FactValue lastCheck_;
    QList<ActionButtonValue> buttons_;
};

}  // namespace larkspan::bridge
