#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantList>

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>

#include "adapters/NotificationText.h"
#include "adapters/WaitingNotices.h"
#include "platform/NotificationCenter.h"

class QDBusPendingCall;

namespace larkspan::adapters {

/// Notifications as Linux desktops have them: `org.freedesktop.Notifications` on the session bus. Never waits for the
/// server; a notice that no server takes before the deadline is dropped.
class FreedesktopNotificationCenter final : public QObject, public platform::NotificationCenter {
    Q_OBJECT

public:
    explicit FreedesktopNotificationCenter(
        QDBusConnection bus, std::chrono::milliseconds deadline = std::chrono::seconds(5));

    /// Nothing to ask: here the user settles in the desktop which programs may notify, and programs are not told.
    void requestAuthorization() override {}
    void add(const platform::NotificationRequest& request) override;

private slots:
    void onNotificationClosed(uint serverId, uint reason);

private:
    struct Shown {
        std::string identifier;
        uint serverId;
    };

    void onOwnerChanged(const QString& oldOwner);
    void sendWaiting();
    void askForMarkup();
    void sendAll(BodyMarkup markup);
    void send(const Notice& notice, BodyMarkup markup);
    void remember(const std::string& identifier, uint serverId);
    uint serverIdOf(const std::string& identifier) const;
    QDBusPendingCall call(const QString& method, const QVariantList& arguments = {});

    QDBusConnection bus_;
    int deadline_;
    /// Grows with each server that went, so that its late answers are told from its successor's.
    std::uint64_t serversGone_ = 0;
    std::optional<BodyMarkup> markup_;
    bool isAsking_ = false;
    WaitingNotices waiting_;
    std::set<std::string> sending_;
    /// The oldest first.
    std::deque<Shown> shown_;
};

}  // namespace larkspan::adapters
