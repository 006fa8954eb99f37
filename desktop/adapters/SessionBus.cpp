#include "adapters/SessionBus.h"

#include <QUuid>

#include <algorithm>
#include <utility>

namespace larkspan::adapters {

namespace {

/// Qt makes each of its own connections once in the life of a process, so this one has a name of its own.
QString newName()
{
    return QUuid::createUuid().toString();
}

QDBusConnection connectTo(const QString& address, const QString& name)
{
    return address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                             : QDBusConnection::connectToBus(address, name);
}

}  // namespace

SessionBus::SessionBus(QString address, BusPauses pauses)
    : address_(std::move(address))
    , pauses_(pauses)
    , pause_(pauses.first)
    , connection_(connectTo(address_, newName()))
{
    pausing_.setSingleShot(true);
    connect(&pausing_, &QTimer::timeout, this, &SessionBus::tryAgain);
    if (connection_.isConnected()) watch();
}

SessionBus::~SessionBus()
{
    if (attempt_) attempt_->wait();
    QDBusConnection::disconnectFromBus(connection_.name());
}

void SessionBus::watch()
{
    sinceConnected_.start();
    isLost_ = false;
    connection_.connect(
        {}, "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected", this, SLOT(noticeLoss()));
    // It may have been lost before the signal was awaited.
    if (!connection_.isConnected()) noticeLoss();
}

void SessionBus::noticeLoss()
{
    if (std::exchange(isLost_, true)) return;
    QDBusConnection::disconnectFromBus(connection_.name());
    // A bus that cuts the program off for what it does with each connection is not asked again and again.
    if (sinceConnected_.hasExpired(pauses_.longest.count())) pause_ = pauses_.first;
    pause();
    emit changed();
}

void SessionBus::pause()
{
    pausing_.start(pause_);
    pause_ = std::min(pause_ * 2, pauses_.longest);
}

void SessionBus::tryAgain()
{
    // In another thread, since a bus that is there and does not answer is waited for, up to half a minute.
    const auto name = newName();
    attempt_.reset(QThread::create([address = address_, name] { connectTo(address, name); }));
    connect(attempt_.get(), &QThread::finished, this, [this, name] { take(QDBusConnection(name)); });
    attempt_->start();
}

void SessionBus::take(const QDBusConnection& made)
{
    if (!made.isConnected()) {
        QDBusConnection::disconnectFromBus(made.name());
        return pause();
    }
    connection_ = made;
    watch();
    emit changed();
}

}  // namespace larkspan::adapters
