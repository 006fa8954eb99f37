#include "adapters/FreedesktopNotificationCenter.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QVariantMap>

#include <algorithm>

#include "adapters/WhenAnswered.h"

namespace larkspan::adapters {

namespace {

constexpr auto server = "org.freedesktop.Notifications";
constexpr auto serverPath = "/org/freedesktop/Notifications";
constexpr auto serverInterface = "org.freedesktop.Notifications";
constexpr auto programId = "com.kestrune.larkspan";

// Limits on what a service that reports without end can make this program hold.
constexpr std::size_t mostSending = 16;
constexpr std::size_t mostShown = 512;

constexpr uchar normalUrgency = 1;
constexpr int expiresAsTheServerSees = -1;

QVariantMap hintsOf(const NotificationText& text)
{
    return {
        {"desktop-entry", programId},
        {"sound-name", "message-new-instant"},
        {"urgency", QVariant::fromValue(normalUrgency)},
        {"x-kestrune-type", text.type},
        {"x-kestrune-id", text.id},
    };
}

}  // namespace

FreedesktopNotificationCenter::FreedesktopNotificationCenter(const SessionBus& bus, std::chrono::milliseconds deadline)
    : bus_(bus)
    , server_(server, bus_.connection(), QDBusServiceWatcher::WatchForOwnerChange)
    , deadline_(static_cast<int>(deadline.count()))
{
    connect(&server_, &QDBusServiceWatcher::serviceOwnerChanged, this, [this](const QString&, const QString& oldOwner) {
        if (!oldOwner.isEmpty()) forgetServer();
    });
    connect(&bus_, &SessionBus::changed, this, &FreedesktopNotificationCenter::followServer);
    followServer();
}

void FreedesktopNotificationCenter::followServer()
{
    forgetServer();
    auto bus = bus_.connection();
    if (!bus.isConnected()) return;
    server_.setConnection(bus);
    bus.connect(
        server, serverPath, serverInterface, "NotificationClosed", this, SLOT(onNotificationClosed(uint, uint)));
}

void FreedesktopNotificationCenter::add(const platform::NotificationRequest& request)
{
    if (!bus_.connection().isConnected()) return;

    waiting_.add({request.identifier, NotificationText(request)});
    sendWaiting();
}

void FreedesktopNotificationCenter::onNotificationClosed(uint serverId, uint)
{
    std::erase_if(shown_, [serverId](const Shown& shown) { return shown.serverId == serverId; });
}

void FreedesktopNotificationCenter::forgetServer()
{
    ++serversGone_;
    markup_.reset();
    shown_.clear();
}

void FreedesktopNotificationCenter::sendWaiting()
{
    if (markup_) {
        sendAll(*markup_);
    } else if (!waiting_.isEmpty() && !isAsking_) {
        askForMarkup();
    }
}

void FreedesktopNotificationCenter::askForMarkup()
{
    isAsking_ = true;
    whenAnswered(this, call("GetCapabilities"), [this, gone = serversGone_](const QDBusPendingCall& answer) {
        isAsking_ = false;
        if (gone != serversGone_) return sendWaiting();

        const QDBusPendingReply<QStringList> capabilities = answer;
        // A server that does not answer is asked again for the next notice; these have waited long enough.
        if (capabilities.isError()) return sendAll(BodyMarkup::unknown);

        markup_ = capabilities.value().contains("body-markup") ? BodyMarkup::interpreted : BodyMarkup::literal;
        sendAll(*markup_);
    });
}

void FreedesktopNotificationCenter::sendAll(BodyMarkup markup)
{
    while (sending_.size() < mostSending) {
        // A notice can be replaced on screen only when the server has answered with its id.
        const auto notice = waiting_.takeOldest(sending_);
        if (!notice) return;
        send(*notice, markup);
    }
}

void FreedesktopNotificationCenter::send(const Notice& notice, BodyMarkup markup)
{
    const auto& [identifier, text] = notice;
    const QVariantList arguments{"Kestrune", serverIdOf(identifier), programId, text.title, text.laidOut(markup),
        QStringList(), hintsOf(text), expiresAsTheServerSees};

    sending_.insert(identifier);
    whenAnswered(this, call("Notify", arguments), [this, sent = identifier, gone = serversGone_](const auto& answer) {
        sending_.erase(sent);
        const QDBusPendingReply<uint> serverId = answer;
        if (!serverId.isError() && gone == serversGone_) remember(sent, serverId.value());
        sendWaiting();
    });
}

void FreedesktopNotificationCenter::remember(const std::string& identifier, uint serverId)
{
    std::erase_if(shown_, [&](const Shown& shown) { return shown.identifier == identifier; });
    shown_.push_back({identifier, serverId});
    if (shown_.size() > mostShown) shown_.pop_front();
}

uint FreedesktopNotificationCenter::serverIdOf(const std::string& identifier) const
{
    constexpr uint none = 0;
    const auto shown = std::ranges::find(shown_, identifier, &Shown::identifier);
    return shown == shown_.end() ? none : shown->serverId;
}

QDBusPendingCall FreedesktopNotificationCenter::call(const QString& method, const QVariantList& arguments)
{
    auto message = QDBusMessage::createMethodCall(server, serverPath, serverInterface, method);
    message.setArguments(arguments);
    return bus_.connection().asyncCall(message, deadline_);
}

}  // namespace larkspan::adapters
