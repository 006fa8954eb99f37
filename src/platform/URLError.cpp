#include "platform/URLError.h"

#include <string>

namespace larkspan::platform {

namespace {

std::string text(URLError::Code code)
{
    using Code = URLError::Code;
    switch (code) {
    case Code::notConnectedToInternet: return "The computer is not connected to the network.";
    case Code::networkConnectionLost: return "The network connection was lost.";
    case Code::dnsLookupFailed: return "The server’s address could not be looked up.";
    case Code::cannotFindHost: return "The server could not be found.";
    case Code::cannotConnectToHost: return "Could not connect to the server.";
    case Code::internationalRoamingOff: return "Data roaming is turned off.";
    case Code::callIsActive: return "The network cannot be used during a call.";
    case Code::dataNotAllowed: return "The network does not allow data.";
    case Code::timedOut: return "The request timed out.";
    case Code::cancelled: return "The request was cancelled.";
    case Code::secureConnectionFailed: return "A secure connection to the server could not be made.";
    case Code::serverCertificateUntrusted: return "The server’s certificate is not trusted.";
    case Code::badServerResponse: return "The server’s answer could not be understood.";
    case Code::dataLengthExceedsMaximum: return "The server’s answer is too large.";
    case Code::userAuthenticationRequired: return "The stored API key cannot be used. Save it again.";
    case Code::unknown: break;
    }
    return "The request failed for an unknown reason.";
}

}  // namespace

URLError::URLError(Code code)
    : LocalizedError(text(code))
    , code_(code)
{
}

}  // namespace larkspan::platform
