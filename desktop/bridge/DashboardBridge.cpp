#include "bridge/DashboardBridge.h"

#include <utility>

namespace larkspan::bridge {

DashboardBridge::DashboardBridge(
    std::shared_ptr<workspace::Dashboard> dashboard, platform::Executor& main, QObject* parent)
    : QObject(parent)
    , dashboard_(std::move(dashboard))
    , main_(main)
    , notice_(main,
          [this] {
              readState();
              emit changed();
          })
    , subscriptions_(dashboard_->observe([this] { notice_.announce(); }))
{
    readState();
}

void DashboardBridge::readState()
{
    placeholder_ = dashboard_->placeholder();
    statusText_ = dashboard_->statusText();
    summary_ = dashboard_->summary();
    rows_.update(dashboard_->rows());
    followSettings();
}

void DashboardBridge::followSettings()
{
    if (shownSettings_ == dashboard_->settings()) return;
    shownSettings_ = dashboard_->settings();
    // A sheet that closes still reads its own.
    if (settings_) settings_.release()->deleteLater();
    if (shownSettings_) settings_ = std::make_unique<SettingsBridge>(shownSettings_, main_);
}

QString DashboardBridge::headlineDetails() const
{
    QStringList details;
    for (const auto& detail : summary_.operationalDetails()) details << QString::fromStdString(detail);
    return details.join(QStringLiteral(" · "));
}

int DashboardBridge::selectedRow() const
{
    const auto row = dashboard_->selectedRow();
    return row ? static_cast<int>(*row) : -1;
}

bool DashboardBridge::showsList() const
{
    return dashboard_->content() == workspace::Dashboard::Content::list;
}

QStringList DashboardBridge::refreshIntervalLabels() const
{
    QStringList labels;
    for (const auto interval : workspace::Dashboard::refreshIntervals) {
        labels << QString::fromStdString(workspace::refreshIntervalLabel(interval));
    }
    return labels;
}

void DashboardBridge::chooseRefreshInterval(int choice)
{
    dashboard_->chooseRefreshInterval(workspace::Dashboard::refreshIntervals.at(static_cast<std::size_t>(choice)));
}

}  // namespace larkspan::bridge
