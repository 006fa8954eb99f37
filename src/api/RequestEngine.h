#pragma once

#include <optional>
#include <stop_token>
#include <string>

#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/HttpTransport.h"
#include "support/Task.h"

namespace larkspan::api {

/// What is under every operation: a request is built, signed with the stored key, sent and its answer checked, all on
/// the client's own executor.
class RequestEngine {
public:
    struct Ports {
        platform::Executor& executor;
        platform::HttpTransport& transport;
        platform::CredentialStore& credentials;
        const platform::Clock& clock;
    };

    enum class Base { v1, feature };

    /// One request as an operation words it. `path` may start with "/" and may hold a query; `body` is JSON.
    struct Call {
        Base base = Base::v1;
        std::string method = "GET";
        std::string path;
        std::optional<std::string> body = {};
    };

    /// `serviceHost` is a host or host:port and is reached over HTTPS.
    RequestEngine(Ports ports, const std::string& serviceHost);
    RequestEngine(const RequestEngine&) = delete;
    RequestEngine& operator=(const RequestEngine&) = delete;

    /// The answer, decoded in either result shape; one of `model::Results`. Whoever calls this or `sendRecord` includes
    /// RequestSending.h.
    template <typename Result>
    support::Task<Result> sendRequest(Call call, std::stop_token stop = {});

    /// The same with one of `model::RequestBodies` as the body.
    template <typename Result, typename Body>
    support::Task<Result> sendRecord(Call call, Body body);

    /// For operations whose answer carries nothing of interest.
    support::Task<void> sendForNothing(Call call);

    /// A GET that gives the body undecoded, for results with shapes of their own.
    support::Task<std::string> sendRawRequest(Base base, std::string path, std::stop_token stop = {});

    /// Ends if the service accepts `key`, which needs not be the stored one; else throws what a request would.
    support::Task<void> validateAPIKey(std::string key, std::stop_token stop = {});

    /// Where every request is made, and where an operation of several requests runs.
    platform::Executor& executor() const { return ports_.executor; }

    /// For an operation that decodes its answer itself.
    const platform::Clock& clock() const { return ports_.clock; }

private:
    platform::HttpRequest preparedRequest(const Call& call) const;
    std::string storedKey() const;

    // Tasks that run on the executor; the public operations send them there.
    support::Task<std::string> exchange(platform::HttpRequest request, std::stop_token stop);
    support::Task<std::string> send(Call call, std::stop_token stop);
    support::Task<void> validate(std::string key, std::stop_token stop);
    support::Task<void> ignoreAnswer(Call call);
    template <typename Result>
    support::Task<Result> sendAndDecode(Call call, std::stop_token stop);
    template <typename Result, typename Body>
    support::Task<Result> encodeAndSend(Call call, Body body);

    const std::string baseURL_;
    const std::string featureBaseURL_;
    const Ports ports_;
};

}  // namespace larkspan::api
