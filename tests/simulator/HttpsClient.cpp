#include "HttpsClient.h"

#include <utility>

namespace larkspan::simulator {

namespace {

size_t append(char* data, size_t size, size_t count, void* text)
{
    static_cast<std::string*>(text)->append(data, size * count);
    return size * count;
}

}  // namespace

HttpsClient::HttpsClient(std::string base, std::filesystem::path authority)
    : base_(std::move(base))
    , authority_(std::move(authority))
    , handle_(curl_easy_init())
{
}

HttpsResult HttpsClient::send(const Request& request)
{
    curl_easy_reset(handle_.get());
    curl_easy_setopt(handle_.get(), CURLOPT_CAINFO, authority_.c_str());
    return perform(handle_.get(), request);
}

HttpsResult HttpsClient::order(const std::string& method, const std::string& path, const std::string& body)
{
    const Handle handle(curl_easy_init());
    curl_easy_setopt(handle.get(), CURLOPT_SSL_VERIFYPEER, 0L);
    curl_easy_setopt(handle.get(), CURLOPT_SSL_VERIFYHOST, 0L);
    return perform(handle.get(), {method, path, {}, body});
}

HttpsResult HttpsClient::perform(CURL* handle, const Request& request) const
{
    const auto url = base_ + request.target;
    curl_slist* headers = nullptr;
    for (const auto& [name, value] : request.headers) {
        std::string line = name;
        line.append(": ").append(value);
        headers = curl_slist_append(headers, line.c_str());
    }
    HttpsResult result;
    curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
    curl_easy_setopt(handle, CURLOPT_NOPROXY, "*");
    curl_easy_setopt(handle, CURLOPT_CUSTOMREQUEST, request.method.c_str());
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, static_cast<long>(patience_.count()));
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, append);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &result.body);
    curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, append);
    curl_easy_setopt(handle, CURLOPT_HEADERDATA, &result.head);
    if (!request.body.empty()) {
        curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE, static_cast<long>(request.body.size()));
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, request.body.c_str());
    }
    result.code = curl_easy_perform(handle);
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &result.status);
    curl_slist_free_all(headers);
    return result;
}

}  // namespace larkspan::simulator
