#pragma once

#include <exception>

namespace larkspan::core {

/// What is known of a key once the service was asked about it.
enum class APIKeyVerificationResult { valid, invalid, offline, timedOut, serverError, unknown };

/// Why a verification failed, told apart by the code of the failure.
APIKeyVerificationResult classifiedFailure(const std::exception_ptr& failure);

}  // namespace larkspan::core
