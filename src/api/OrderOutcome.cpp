#include "api/OrderOutcome.h"

#include "model/json/DecodingError.h"
#include "platform/URLError.h"

namespace larkspan::api {

using platform::URLError;

namespace {

bool mayHaveTakenEffect(const APIError& failure)
{
    switch (failure.kind()) {
    case APIError::Case::decoding:
    case APIError::Case::invalidResponse: return true;
    // Only these mean that the service has read the request and refused it.
    case APIError::Case::httpStatus: return *failure.statusCode() < 400 || *failure.statusCode() > 499;
    case APIError::Case::custom:
    case APIError::Case::missingAPIKey:
    case APIError::Case::invalidURL: break;
    }
    return false;
}

bool mayHaveTakenEffect(URLError::Code code)
{
    switch (code) {
    case URLError::Code::notConnectedToInternet:
    case URLError::Code::dnsLookupFailed:
    case URLError::Code::cannotFindHost:
    case URLError::Code::cannotConnectToHost:
    case URLError::Code::internationalRoamingOff:
    case URLError::Code::callIsActive:
    case URLError::Code::dataNotAllowed:
    case URLError::Code::serverCertificateUntrusted:
    case URLError::Code::userAuthenticationRequired: return false;
    case URLError::Code::networkConnectionLost:
    case URLError::Code::timedOut:
    case URLError::Code::cancelled:
    case URLError::Code::secureConnectionFailed:
    case URLError::Code::badServerResponse:
    case URLError::Code::dataLengthExceedsMaximum:
    case URLError::Code::unknown: break;
    }
    return true;
}

}  // namespace

bool mayHaveTakenEffect(const std::exception_ptr& failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const APIError& error) {
        return mayHaveTakenEffect(error);
    } catch (const URLError& error) {
        return mayHaveTakenEffect(error.code());
    } catch (const model::DecodingError&) {
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace larkspan::api
