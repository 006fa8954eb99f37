#include "bridge/DashboardBridge.h"

#include <string_view>
#include <utility>

namespace larkspan::bridge {

namespace {

QString text(std::string_view words)
{
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
}

}  // namespace

DashboardBridge::DashboardBridge(
    std::shared_ptr<workspace::Dashboard> dashboard, platform::Executor& main, QObject* parent)
    : QObject(parent)
    , dashboard_(std::move(dashboard))
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
    rows_.update(dashboard_->rows());
}

QString DashboardBridge::windowTitle() const
{
    return text(workspace::Dashboard::windowTitle);
}

bool DashboardBridge::showsList() const
{
    return dashboard_->content() == workspace::Dashboard::Content::list;
}

QString DashboardBridge::listHeading() const
{
    return text(workspace::Dashboard::listHeading);
}

QString DashboardBridge::refreshFailedText() const
{
    return text(workspace::Dashboard::refreshFailedText);
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
