#include "adapters/http/PortalProxies.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDeadlineTimer>
#include <QObject>

#include <chrono>
#include <string_view>
#include <utility>

#include "adapters/WhenAnswered.h"

namespace larkspan::adapters {

namespace {

using Answer = support::UniqueFunction<void(std::string)>;

constexpr std::chrono::milliseconds patience{2'000};
constexpr std::chrono::seconds restAfterFailure{60};

QDBusMessage lookup(const std::string& url)
{
    auto call = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
        "org.freedesktop.portal.ProxyResolver", "Lookup");
    call << QString::fromStdString(url);
    return call;
}

}  // namespace

class PortalProxies::Portal : public QObject {
public:
    explicit Portal(const SessionBus& bus)
        : bus_(bus)
    {
        // It may be another portal.
        connect(&bus_, &SessionBus::changed, this, [this] { rest_ = QDeadlineTimer(); });
    }

    void findProxy(const std::string& url, Answer answer)
    {
        // A failing portal delays one request, not each.
        if (!rest_.hasExpired()) return answer({});

        const auto call = bus_.connection().asyncCall(lookup(url), static_cast<int>(patience.count()));
        whenAnswered(this, call, [this, answer = std::move(answer)](const QDBusPendingCall& answered) mutable {
            const QDBusPendingReply<QStringList> reply = answered;
            if (reply.isError()) rest_.setRemainingTime(restAfterFailure);
            answer(reply.isError() ? std::string() : usableProxy(reply.value()));
        });
    }

private:
    const SessionBus& bus_;
    QDeadlineTimer rest_;
};

PortalProxies::PortalProxies(const SessionBus& bus, platform::Executor& main)
    : main_(main)
    , portal_(std::make_shared<Portal>(bus))
{
}

PortalProxies::~PortalProxies() = default;

void PortalProxies::findProxy(std::string url, Answer answer)
{
    main_.post([portal = std::weak_ptr(portal_), url = std::move(url), answer = std::move(answer)]() mutable {
        if (const auto alive = portal.lock()) alive->findProxy(url, std::move(answer));
    });
}

std::string PortalProxies::usableProxy(const QStringList& proxies)
{
    for (const auto& proxy : proxies) {
        const auto text = proxy.toStdString();
        const auto schemeEnd = text.find("://");
        if (schemeEnd == std::string::npos) continue;
        const auto scheme = std::string_view(text).substr(0, schemeEnd);
        if (scheme == "direct") return {};
        if (scheme == "http" || scheme == "https" || scheme == "socks4" || scheme == "socks4a") return text;
        // Names that only the proxy's network knows have to be resolved by the proxy.
        if (scheme == "socks" || scheme == "socks5") return "socks5h" + text.substr(schemeEnd);
    }
    return {};
}

}  // namespace larkspan::adapters
