#include "core/APIKeyVerification.h"

#include "api/APIError.h"
#include "platform/URLError.h"

namespace larkspan::core {

namespace {

using Result = APIKeyVerificationResult;

Result classifiedCode(platform::URLError::Code code)
{
    using Code = platform::URLError::Code;
    switch (code) {
    case Code::notConnectedToInternet:
    case Code::networkConnectionLost:
    case Code::dnsLookupFailed:
    case Code::cannotFindHost:
    case Code::cannotConnectToHost:
    case Code::internationalRoamingOff:
    case Code::callIsActive:
    case Code::dataNotAllowed: return Result::offline;
    case Code::timedOut: return Result::timedOut;
    default: return Result::unknown;
    }
}

Result classifiedStatus(int status)
{
    if (status == 401 || status == 403) return Result::invalid;
    if (status >= 500 && status <= 599) return Result::serverError;
    return Result::unknown;
}

}  // namespace

APIKeyVerificationResult classifiedFailure(const std::exception_ptr& failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const platform::URLError& error) {
        return classifiedCode(error.code());
    } catch (const api::APIError& error) {
        return error.statusCode() ? classifiedStatus(*error.statusCode()) : Result::unknown;
    } catch (...) {
        return Result::unknown;
    }
}

}  // namespace larkspan::core
