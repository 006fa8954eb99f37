#pragma once

#include <exception>

namespace larkspan::core {

/// The outcome of asking the service about a key.
enum class APIKeyVerificationResult { valid, invalid, offline, timedOut, serverError, unknown };

/// The reason why a verification failed, by the code of the failure.
APIKeyVerificationResult classifiedFailure(const std::exception_ptr& failure);

}  // namespace larkspan::core
