#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <memory>

#include "bridge/ChangeNotice.h"
#include "bridge/SettingsBridge.h"
#include "bridge/StatusPageListModel.h"
#include "bridge/ToneNames.h"
#include "bridge/Words.h"
#include "support/Observable.h"
#include "workspace/Dashboard.h"

namespace larkspan::bridge {

/// The dashboard's state for QML; everything here is worded and decided by `workspace::Dashboard`.
class DashboardBridge : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString windowTitle READ windowTitle CONSTANT)
    Q_PROPERTY(bool showsList READ showsList NOTIFY changed)
    Q_PROPERTY(QString placeholderSymbol READ placeholderSymbol NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::Tone::Value placeholderTone READ placeholderTone NOTIFY changed)
    Q_PROPERTY(QString placeholderTitle READ placeholderTitle NOTIFY changed)
    Q_PROPERTY(QString placeholderText READ placeholderText NOTIFY changed)
    Q_PROPERTY(bool placeholderShowsProgress READ placeholderShowsProgress NOTIFY changed)
    Q_PROPERTY(bool placeholderOffersSettings READ placeholderOffersSettings NOTIFY changed)
    Q_PROPERTY(bool placeholderOffersRetry READ placeholderOffersRetry NOTIFY changed)
    Q_PROPERTY(QString headlineTitle READ headlineTitle NOTIFY changed)
    Q_PROPERTY(QString headlineDetails READ headlineDetails NOTIFY changed)
    Q_PROPERTY(QString headlineSymbol READ headlineSymbol NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::Tone::Value headlineTone READ headlineTone NOTIFY changed)
    Q_PROPERTY(QString listHeading READ listHeading CONSTANT)
    Q_PROPERTY(larkspan::bridge::StatusPageListModel* rows READ rows CONSTANT)
    /// The place of the selected page among the rows; -1 if it is not there.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY changed)
    Q_PROPERTY(bool showsRefreshFailure READ showsRefreshFailure NOTIFY changed)
    Q_PROPERTY(QString refreshFailedText READ refreshFailedText CONSTANT)
    Q_PROPERTY(QString statusText READ statusText NOTIFY changed)
    Q_PROPERTY(bool statusShowsProgress READ statusShowsProgress NOTIFY changed)
    Q_PROPERTY(bool statusShowsWarning READ statusShowsWarning NOTIFY changed)
    Q_PROPERTY(bool isRefreshEnabled READ isRefreshEnabled NOTIFY changed)
    Q_PROPERTY(QStringList refreshIntervalLabels READ refreshIntervalLabels CONSTANT)
    /// What the settings sheet shows; null while it is down.
    Q_PROPERTY(larkspan::bridge::SettingsBridge* settings READ settings NOTIFY changed)

public:
    DashboardBridge(
        std::shared_ptr<workspace::Dashboard> dashboard, platform::Executor& main, QObject* parent = nullptr);

    /// While nobody sees the dashboard, changes cost it nothing.
    void setVisible(bool isVisible) { isVisible ? notice_.release() : notice_.hold(); }

    QString windowTitle() const { return words(workspace::Dashboard::windowTitle); }
    bool showsList() const;
    QString placeholderSymbol() const { return QString::fromStdString(placeholder_.symbol); }
    Tone::Value placeholderTone() const { return toneOf(placeholder_.tone); }
    QString placeholderTitle() const { return QString::fromStdString(placeholder_.title); }
    QString placeholderText() const { return QString::fromStdString(placeholder_.text); }
    bool placeholderShowsProgress() const { return placeholder_.showsProgress; }
    bool placeholderOffersSettings() const { return placeholder_.offersSettings; }
    bool placeholderOffersRetry() const { return placeholder_.offersRetry; }
    QString headlineTitle() const { return QString::fromStdString(summary_.operationalTitle()); }
    QString headlineDetails() const;
    QString headlineSymbol() const { return words(summary_.symbolName()); }
    Tone::Value headlineTone() const { return toneOf(summary_.tone()); }
    QString listHeading() const { return words(workspace::Dashboard::listHeading); }
    StatusPageListModel* rows() { return &rows_; }
    int selectedRow() const;
    bool showsRefreshFailure() const { return dashboard_->showsRefreshFailure(); }
    QString refreshFailedText() const { return words(workspace::Dashboard::refreshFailedText); }
    QString statusText() const { return QString::fromStdString(statusText_.text); }
    bool statusShowsProgress() const { return statusText_.showsProgress; }
    bool statusShowsWarning() const { return statusText_.showsWarning; }
    bool isRefreshEnabled() const { return dashboard_->isRefreshEnabled(); }
    QStringList refreshIntervalLabels() const;
    SettingsBridge* settings() const { return settings_.get(); }

    Q_INVOKABLE void refresh() { dashboard_->refresh(); }
    Q_INVOKABLE void chooseRefreshInterval(int choice);
    Q_INVOKABLE void openPage(const QString& id) { dashboard_->selectedPageId = id.toStdString(); }
    Q_INVOKABLE void openSettings() { dashboard_->openSettings(); }
    Q_INVOKABLE void closeSettings() { dashboard_->closeSettings(); }

signals:
    void changed();

private:
    void readState();
    void followSettings();

    std::shared_ptr<workspace::Dashboard> dashboard_;
    platform::Executor& main_;
    workspace::DashboardOperationalSummary summary_;
    workspace::Dashboard::Placeholder placeholder_;
    workspace::Dashboard::StatusText statusText_;
    StatusPageListModel rows_;
    std::shared_ptr<workspace::Settings> shownSettings_;
    std::unique_ptr<SettingsBridge> settings_;
    ChangeNotice notice_;
    std::array<support::Subscription, 2> subscriptions_;
};

}  // namespace larkspan::bridge
