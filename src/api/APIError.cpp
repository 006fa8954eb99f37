#include "api/APIError.h"

#include <utility>

namespace larkspan::api {

APIError::APIError(Case kind, std::string text, std::optional<int> statusCode)
    : LocalizedError(std::move(text))
    , kind_(kind)
    , statusCode_(statusCode)
{
}

APIError APIError::httpStatus(int code)
{
    return {Case::httpStatus, "Server returned HTTP status code " + std::to_string(code) + ".", code};
}

APIError APIError::decoding(const std::exception_ptr& underlying)
{
    return {Case::decoding, "Failed to decode response: " + support::localizedDescription(underlying)};
}

APIError APIError::custom(std::string text)
{
    return {Case::custom, std::move(text)};
}

APIError APIError::missingAPIKey()
{
    return {Case::missingAPIKey, "API key is missing."};
}

APIError APIError::invalidURL()
{
    return {Case::invalidURL, "Could not build a valid API URL."};
}

APIError APIError::invalidResponse()
{
    return {Case::invalidResponse, "Received an invalid response from the server."};
}

}  // namespace larkspan::api
