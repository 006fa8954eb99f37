#pragma once

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <memory>

#include "adapters/SessionBus.h"

class QDBusPendingCallWatcher;

namespace larkspan::adapters {

/// The desktop's list of items, `org.kde.StatusNotifierWatcher`, which may appear and disappear at any time. Never
/// waits for it and never starts it. Main thread only.
class StatusNotifierWatcher final : public QObject {
    Q_OBJECT

public:
    /// `bus` must outlive this object.
    explicit StatusNotifierWatcher(const SessionBus& bus, QObject* parent = nullptr);
    ~StatusNotifierWatcher() override;

    /// Registers the item of this connection, now and with each new watcher.
    void registerItem();

    /// Whether some panel shows the items of the list.
    bool hasHost() const { return hasHost_; }

signals:
    void hasHostChanged();

private slots:
    void askForHost();

private:
    void follow();
    void setOwner(const QString& owner);
    QDBusMessage call(const char* interface, const char* method, const QVariantList& arguments) const;
    void sendRegistration();
    void setHasHost(bool hasHost);

    const SessionBus& bus_;
    QDBusServiceWatcher changes_;
    std::unique_ptr<QDBusPendingCallWatcher> answer_;
    /// The bus name of the watcher's process; empty while there is none.
    QString owner_;
    bool hasItem_ = false;
    bool hasHost_ = false;
};

}  // namespace larkspan::adapters
