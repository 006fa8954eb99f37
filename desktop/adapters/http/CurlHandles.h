#pragma once

#include <curl/curl.h>

#include <memory>

#include "support/FatalError.h"

namespace larkspan::adapters {

namespace detail {

struct CurlRelease {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
    void operator()(CURLU* url) const { curl_url_cleanup(url); }
    void operator()(char* text) const { curl_free(text); }
};

}  // namespace detail

using TransferHandle = std::unique_ptr<CURL, detail::CurlRelease>;
using HeaderList = std::unique_ptr<curl_slist, detail::CurlRelease>;
using UrlHandle = std::unique_ptr<CURLU, detail::CurlRelease>;
using CurlText = std::unique_ptr<char, detail::CurlRelease>;

/// Sets an option that the client relies on; ends the program if that fails, since no transfer may happen without it.
template <typename Value>
void setOption(CURL* transfer, CURLoption option, Value value)
{
    if (curl_easy_setopt(transfer, option, value) != CURLE_OK) support::fatalError("libcurl refuses an option");
}

}  // namespace larkspan::adapters
