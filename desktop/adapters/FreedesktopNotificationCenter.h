#pragma once

#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantList>

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>

#include "adapters/NotificationText.h"
#include "adapters/SessionBus.h"
#include "adapters/WaitingNotices.h"
#include "platform/NotificationCenter.h"

class QDBusPendingCall;

namespace larkspan::adapters {

/// Notifications through `org.freedesktop.Notifications` on the session bus. Never waits for the server; a notice that
/// no server accepts before the deadline is dropped.
class FreedesktopNotificationCenter final : public QObject, public platform::NotificationCenter {
    Q_OBJECT

public:
    /// `bus` must outlive this object.
    explicit FreedesktopNotificationCenter(
        const SessionBus& bus, std::chrono::milliseconds deadline = std::chrono::seconds(5));

    /// Nothing to ask: users decide in the desktop's settings which programs may notify, and programs are not told.
    void requestAuthorization() override {}
    void add(const platform::NotificationRequest& request) override;

private slots:
    void onNotificationClosed(uint serverId, uint reason);

private:
    struct Shown {
        std::string identifier;
        uint serverId;
    };

    void followServer();
    void forgetServer();
    void sendWaiting();
    void askForMarkup();
    void sendAll(BodyMarkup markup);
    void send(const Notice& notice, BodyMarkup markup);
    void remember(const std::string& identifier, uint serverId);
    uint serverIdOf(const std::string& identifier) const;
    QDBusPendingCall call(const QString& method, const QVariantList& arguments = {});

    const SessionBus& bus_;
    QDBusServiceWatcher server_;
    int deadline_;
    /// Incremented when a server disappears, to tell its late answers from those of its successor.
    std::uint64_t serversGone_ = 0;
    std::optional<BodyMarkup> markup_;
    bool isAsking_ = false;
    WaitingNotices waiting_;
    std::set<std::string> sending_;
    /// The oldest first.
    std::deque<Shown> shown_;
};

}  // namespace larkspan::adapters
