#pragma once

#include <QDBusConnection>
#include <QStringList>

#include <memory>
#include <string>

#include "adapters/http/ProxySettings.h"
#include "platform/Executor.h"

namespace larkspan::adapters {

/// The proxy settings as the desktop's portal gives them, which knows every desktop's and evaluates automatic ones in a
/// process of its own. Where there is no portal, or it says nothing in time, there is no proxy. Made and destroyed on
/// the main thread.
class PortalProxies final : public ProxySettings {
public:
    /// `main` is the executor of the main thread and outlives this.
    PortalProxies(QDBusConnection bus, platform::Executor& main);
    ~PortalProxies() override;

    void findProxy(std::string url, support::UniqueFunction<void(std::string proxy)> answer) override;

    /// The first of the portal's proxies that libcurl can use, in its words; empty for none.
    static std::string usableProxy(const QStringList& proxies);

private:
    class Portal;

    platform::Executor& main_;
    std::shared_ptr<Portal> portal_;
};

}  // namespace larkspan::adapters
