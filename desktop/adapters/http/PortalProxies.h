#pragma once

#include <QStringList>

#include <memory>
#include <string>

#include "adapters/SessionBus.h"
#include "adapters/http/ProxySettings.h"
#include "platform/Executor.h"

namespace larkspan::adapters {

/// The proxy settings from the desktop's portal, which reads those of every desktop and evaluates automatic
/// configuration in a separate process. Without a portal, or without an answer in time, no proxy is used. Constructed
/// and destroyed on the main thread.
class PortalProxies final : public ProxySettings {
public:
    /// `main` is the executor of the main thread; it and `bus` must outlive this object.
    PortalProxies(const SessionBus& bus, platform::Executor& main);
    ~PortalProxies() override;

    void findProxy(std::string url, support::UniqueFunction<void(std::string proxy)> answer) override;

    /// The first of the portal's proxies that libcurl can use, written as libcurl expects it; empty if there is none.
    static std::string usableProxy(const QStringList& proxies);

private:
    class Portal;

    platform::Executor& main_;
    std::shared_ptr<Portal> portal_;
};

}  // namespace larkspan::adapters
