#pragma once

#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/lists/RowListModel.h"
#include "bridge/screens/ChildScreen.h"
#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/HeadlineValue.h"
#include "bridge/values/MarkerValue.h"
#include "bridge/values/PlaceholderValue.h"
#include "bridge/values/StatusPageRowValue.h"
#include "bridge/workspace/SettingsBridge.h"
#include "bridge/workspace/StatusPageDetailBridge.h"
#include "workspace/DashboardView.h"

namespace larkspan::bridge {

/// The dashboard's state for QML; texts and decisions are those of `workspace::DashboardView`.
class DashboardBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString windowTitle READ windowTitle CONSTANT)
    Q_PROPERTY(bool showsList READ showsList NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::PlaceholderValue placeholder MEMBER placeholder_ NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::HeadlineValue headline MEMBER headline_ NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::MarkerValue status MEMBER status_ NOTIFY changed)
    Q_PROPERTY(QString listHeading READ listHeading CONSTANT)
    Q_PROPERTY(larkspan::bridge::ListModel* rows READ rows CONSTANT)
    /// The index of the selected page in the rows; -1 if it is not there.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY changed)
    Q_PROPERTY(bool showsRefreshFailure READ showsRefreshFailure NOTIFY changed)
    Q_PROPERTY(QString refreshFailedText READ refreshFailedText CONSTANT)
    Q_PROPERTY(bool isRefreshEnabled READ isRefreshEnabled NOTIFY changed)
    Q_PROPERTY(QList<QString> refreshIntervalLabels READ refreshIntervalLabels CONSTANT)
    /// The settings sheet; null while it is closed.
    Q_PROPERTY(larkspan::bridge::SettingsBridge* settings READ settings NOTIFY changed)
    /// The opened page; null if there is none.
    Q_PROPERTY(larkspan::bridge::StatusPageDetailBridge* openedPage READ openedPage NOTIFY changed)

public:
    DashboardBridge(
        std::shared_ptr<workspace::DashboardView> dashboard, const ScreenUpdates& updates, QObject* parent = nullptr);

    QString windowTitle() const { return words(workspace::DashboardView::windowTitle); }
    bool showsList() const { return dashboard_->content() == presentation::Content::records; }
    const MarkerValue& status() const { return status_; }
    QString listHeading() const { return words(workspace::DashboardView::listHeading); }
    ListModel* rows() { return &rows_; }
    int selectedRow() const;
    bool showsRefreshFailure() const { return dashboard_->showsRefreshFailure(); }
    QString refreshFailedText() const { return words(workspace::DashboardView::refreshFailedText); }
    bool isRefreshEnabled() const { return dashboard_->isRefreshEnabled(); }
    QList<QString> refreshIntervalLabels() const;
    SettingsBridge* settings() const { return settings_.get(); }
    StatusPageDetailBridge* openedPage() const { return openedPage_.get(); }

    Q_INVOKABLE void refresh() { dashboard_->refresh(); }
    Q_INVOKABLE void chooseRefreshInterval(int choice);
    Q_INVOKABLE void openPage(const QString& id) { dashboard_->openPage(id.toStdString()); }
    Q_INVOKABLE void closePage() { dashboard_->closePage(); }
    Q_INVOKABLE void openSettings() { dashboard_->openSettings(); }
    Q_INVOKABLE void closeSettings() { dashboard_->closeSettings(); }

private:
    void readState() override;

    std::shared_ptr<workspace::DashboardView> dashboard_;
    const ScreenUpdates& updates_;
    PlaceholderValue placeholder_;
    HeadlineValue headline_;
    MarkerValue status_;
    RowListModel<StatusPageRowValue> rows_;
    ChildScreen<SettingsBridge, workspace::SettingsView> settings_;
    ChildScreen<StatusPageDetailBridge, workspace::StatusPageDetailView> openedPage_;
};

}  // namespace larkspan::bridge
