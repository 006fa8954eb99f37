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

/// The base of every operation: builds a request, signs it with the stored key, sends it and checks its answer, all on
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

    /// One request of an operation. `path` may start with "/" and may contain a query; `body` is JSON.
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

    /// Returns the answer, decoded in either result shape; one of `model::Results`. Callers of this and of `sendRecord`
    /// include RequestSending.h.
    template <typename Result>
    support::Task<Result> sendRequest(Call call, std::stop_token stop = {});

    /// The same with one of `model::RequestBodies` as the body.
    template <typename Result, typename Body>
    support::Task<Result> sendRecord(Call call, Body body);

    /// For operations whose answer has no content of interest.
    support::Task<void> sendForNothing(Call call);

    /// A GET that returns the undecoded body, for results with other shapes.
    support::Task<std::string> sendRawRequest(Base base, std::string path, std::stop_token stop = {});

    /// Returns if the service accepts `key`, which need not be the stored one; otherwise throws as a request would.
    support::Task<void> validateAPIKey(std::string key, std::stop_token stop = {});

    /// The executor of every request, and of operations with several requests.
    platform::Executor& executor() const { return ports_.executor; }

    /// For operations that decode their answers themselves.
    const platform::Clock& clock() const { return ports_.clock; }

private:
    platform::HttpRequest preparedRequest(const Call& call) const;
    std::string storedKey() const;

    // Tasks that run on the executor; the public operations start them there.
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
