#pragma once

#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "model/JSONDecoder.h"
#include "model/StatusPage.h"
#include "model/StatusPagesStatusEnvelope.h"
#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/HttpTransport.h"
#include "support/Task.h"

namespace larkspan::api {

/// The program's only road to the service. Its operations may be awaited from any executor; they work on the
/// client's own and interleave there while they wait. They throw `APIError`, `platform::URLError` or
/// `model::DecodingError`, and nothing is ever sent twice. It must outlive every task that it gave.
class KestruneAPI {
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
    KestruneAPI(Ports ports, const std::string& serviceHost);

    /// The send under every operation: signed with the stored key, checked and decoded in either result shape.
    /// `T` is one of the decoder's result types.
    template <typename T>
    support::Task<T> sendRequest(Call call, std::stop_token stop = {});

    /// A GET that gives the body undecoded, for results with shapes of their own.
    support::Task<std::string> sendRawRequest(Base base, std::string path, std::stop_token stop = {});

    support::Task<std::vector<model::StatusPage>> fetchStatusPages(std::stop_token stop = {});
    support::Task<std::vector<model::PageStatusEntry>> fetchStatusPageStatuses(std::stop_token stop = {});

    /// Ends if the service accepts `key`, which needs not be the stored one; else throws what a request would.
    support::Task<void> validateAPIKey(std::string key, std::stop_token stop = {});

private:
    platform::HttpRequest preparedRequest(const Call& call) const;
    std::string storedKey() const;

    // Tasks that run on the client's executor; the public operations send them there.
    support::Task<std::string> exchange(platform::HttpRequest request, std::stop_token stop);
    support::Task<std::string> send(Call call, std::stop_token stop);
    template <typename T>
    support::Task<T> sendAndDecode(Call call, std::stop_token stop);
    support::Task<std::vector<model::PageStatusEntry>> statusPageStatuses(std::stop_token stop);
    support::Task<void> validate(std::string key, std::stop_token stop);

    const std::string baseURL_;
    const std::string featureBaseURL_;
    const Ports ports_;
    const model::JSONDecoder decoder_;
};

}  // namespace larkspan::api
