#pragma once

#include <string>
#include <vector>

#include "platform/HttpTransport.h"

namespace larkspan::fakes {

/// A way in which a request fails, and the words that the user sees.
struct Refusal {
    platform::HttpTransport::Result answer;
    std::string alert;
};

inline std::vector<Refusal> refusals()
{
    using platform::HttpResponse;
    return {{HttpResponse{403, ""}, "Server returned HTTP status code 403."},
        {HttpResponse{409, ""}, "Server returned HTTP status code 409."},
        {HttpResponse{422, R"({"message": "No."})"}, "Server returned HTTP status code 422."},
        {HttpResponse{500, ""}, "Server returned HTTP status code 500."},
        {platform::URLError::Code::timedOut, "The request timed out."},
        {platform::URLError::Code::cancelled, "The request was cancelled."}};
}

}  // namespace larkspan::fakes
