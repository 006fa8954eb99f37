#pragma once

#include <curl/curl.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>

#include "service/Exchange.h"

namespace larkspan::simulator {

struct HttpsResult {
    CURLcode code = CURLE_OK;
    long status = 0;
    std::string body;
    std::string head;
};

/// A client that trusts one authority and reuses connections.
class HttpsClient {
public:
    HttpsClient(std::string base, std::filesystem::path authority);

    /// Sets how long an answer may take; two seconds by default.
    void setPatience(std::chrono::milliseconds patience) { patience_ = patience; }

    HttpsResult send(const Request& request);

    /// Sends an order to the simulator's control, with any certificate accepted.
    HttpsResult order(const std::string& method, const std::string& path, const std::string& body = {});

private:
    HttpsResult perform(CURL* handle, const Request& request) const;

    struct Cleanup {
        void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    };
    using Handle = std::unique_ptr<CURL, Cleanup>;

    std::string base_;
    std::filesystem::path authority_;
    std::chrono::milliseconds patience_{2'000};
    Handle handle_;
};

}  // namespace larkspan::simulator
