#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>
#include <optional>
#include <ostream>
#include <stop_token>
#include <string>

#include "Authority.h"
#include "FaultServer.h"
#include "adapters/http/ClientLoop.h"
#include "adapters/http/CurlTransport.h"

namespace larkspan::adapters {

using platform::HttpRequest;
using platform::HttpResponse;
using platform::URLError;
using Result = platform::HttpTransport::Result;

const Authority& authority();

/// The certificate and key of a server at 127.0.0.1 and localhost, issued by `authority()`.
const Identity& identity();

HttpRequest request(std::string method, std::string url, std::optional<std::string> body = std::nullopt);
HttpRequest get(std::string url);

/// A transport with the time limits of a test, on its own loop.
class Transport : public testing::Test {
protected:
    Transport();

    /// Created by the first call, with the settings at that time.
    CurlTransport& transport();
    void dropTransport() { transport_.reset(); }

    std::future<Result> begin(HttpRequest request, std::stop_token stop = {});
    Result send(HttpRequest request, std::stop_token stop = {});

    TransportSettings settings;
    ClientLoop loop;

private:
    std::optional<CurlTransport> transport_;
};

/// Matches an answer with this status and body.
testing::Matcher<const Result&> answers(int status, const testing::Matcher<const std::string&>& body = testing::_);

/// Matches a failure with this code.
testing::Matcher<const Result&> fails(URLError::Code code);

}  // namespace larkspan::adapters

namespace larkspan::platform {

void PrintTo(const HttpResponse& response, std::ostream* out);
void PrintTo(URLError::Code code, std::ostream* out);

}  // namespace larkspan::platform
