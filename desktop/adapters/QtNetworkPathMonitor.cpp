#include "adapters/QtNetworkPathMonitor.h"

#include <QNetworkInformation>
#include <QTimer>

#include <utility>

namespace larkspan::adapters {

namespace {

bool isSatisfied(QNetworkInformation::Reachability reachability)
{
    using Reachability = QNetworkInformation::Reachability;
    return reachability == Reachability::Online || reachability == Reachability::Unknown;
}

}  // namespace

void QtNetworkPathMonitor::start(std::function<void(bool isSatisfied)> update)
{
    QTimer::singleShot(0, this, [this, update = std::move(update)] {
        QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability);
        const auto* network = QNetworkInformation::instance();
        if (!network) {
            update(true);
            return;
        }
        connect(network, &QNetworkInformation::reachabilityChanged, this,
            [update](auto reachability) { update(isSatisfied(reachability)); });
        update(isSatisfied(network->reachability()));
    });
}

}  // namespace larkspan::adapters
