#pragma once

#include <QList>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/messages/MessageBridge.h"
#include "bridge/screens/EditableDetailBridge.h"
#include "bridge/values/ActionButtonValue.h"
#include "bridge/values/PillValue.h"
#include "bridge/values/TimelineRowValue.h"
#include "incidents/IncidentDetailView.h"

namespace larkspan::bridge {

/// An opened incident for QML; texts and decisions are those of `incidents::IncidentDetailView`.
class IncidentDetailBridge : public larkspan::bridge::EditableDetailBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString incidentTitle READ incidentTitle NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::PillValue> pills MEMBER pills_ NOTIFY changed)
    Q_PROPERTY(QList<larkspan::bridge::TimelineRowValue> timeline MEMBER timeline_ NOTIFY changed)
    Q_PROPERTY(QString duration READ duration NOTIFY changed)
    Q_PROPERTY(QString assignedTo READ assignedTo NOTIFY changed)
    Q_PROPERTY(bool showsDescription READ showsDescription NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::MessageBridge* message READ message CONSTANT)
    Q_PROPERTY(QList<larkspan::bridge::ActionButtonValue> buttons MEMBER buttons_ NOTIFY changed)
    Q_PROPERTY(QString editMessage READ editMessage NOTIFY changed)

public:
    IncidentDetailBridge(
        std::shared_ptr<incidents::IncidentDetailView> view, const ScreenUpdates& updates, QObject* parent = nullptr);

    QString title() const { return nameWords(view_->title()); }
    QString incidentTitle() const { return nameWords(view_->incident->title); }
    QString duration() const { return words(view_->duration()); }
    QString assignedTo() const { return words(view_->assignedTo()); }
    bool showsDescription() const { return view_->showsDescription(); }
    MessageBridge* message() { return &message_; }
    QString editMessage() const { return wholeText(*view_->editMessage); }

    Q_INVOKABLE void press(const QString& button) { view_->press(button.toStdString()); }
    Q_INVOKABLE void edit(const QString& text) { view_->editMessage = text.toStdString(); }
    Q_INVOKABLE void saveUpdate() { view_->saveUpdate(); }

private:
    void readState() override;

    std::shared_ptr<incidents::IncidentDetailView> view_;
    QList<PillValue> pills_;
    QList<TimelineRowValue> timeline_;
    MessageBridge message_;
    QList<ActionButtonValue> buttons_;
};

}  // namespace larkspan::bridge
