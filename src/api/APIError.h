#pragma once

#include <exception>
#include <optional>
#include <string>

#include "support/LocalizedError.h"

namespace larkspan::api {

/// A failure that the client itself detects: before sending, or in an answer.
class APIError : public support::LocalizedError {
public:
    enum class Case { httpStatus, decoding, custom, missingAPIKey, invalidURL, invalidResponse };

    static APIError httpStatus(int code);
    static APIError decoding(const std::exception_ptr& underlying);
    static APIError custom(std::string text);
    static APIError missingAPIKey();
    static APIError invalidURL();
    static APIError invalidResponse();

    Case kind() const { return kind_; }

    /// The status code of `httpStatus`; absent in every other case.
    std::optional<int> statusCode() const { return statusCode_; }

private:
    APIError(Case kind, std::string text, std::optional<int> statusCode = std::nullopt);

    Case kind_;
    std::optional<int> statusCode_;
};

}  // namespace larkspan::api
