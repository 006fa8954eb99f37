#pragma once

#include <functional>
#include <string>

#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/HttpTransport.h"

namespace larkspan {

/// The access to the service, which differs between the program and its demo.
struct ServiceAccess {
    std::string host;
    platform::Executor& client;
    platform::HttpTransport& transport;
    platform::CredentialStore& credentials;
    /// The key that works, for the settings to show; empty if it is the user's own.
    std::string demoKey = {};
    /// Drops all requests and ends the client's executor. Called once, at the end.
    std::function<void()> stop;
};

}  // namespace larkspan
