#include "adapters/http/TransferFailure.h"

#include <cerrno>

#include "adapters/http/LocalNetwork.h"

namespace larkspan::adapters {

namespace {

using Code = platform::URLError::Code;

long information(CURL* transfer, CURLINFO which)
{
    long value = 0;
    curl_easy_getinfo(transfer, which, &value);
    return value;
}

Code connectFailure(CURL* transfer)
{
    const auto systemError = information(transfer, CURLINFO_OS_ERRNO);
    if (systemError == ENETUNREACH || systemError == ENETDOWN) return Code::notConnectedToInternet;
    return Code::cannotConnectToHost;
}

Code lossOfConnection(CURL* transfer)
{
    // A proxy that refuses the tunnel ends the transfer as a lost connection does, before the service is reached.
    const auto proxyStatus = information(transfer, CURLINFO_HTTP_CONNECTCODE);
    const bool isRefusedByProxy = proxyStatus >= 300;
    return isRefusedByProxy ? Code::cannotConnectToHost : Code::networkConnectionLost;
}

}  // namespace

Code transferFailure(CURL* transfer, CURLcode result)
{
    // For the same, libcurl 8.6 and later say CURLE_TOO_LARGE, which earlier ones do not know.
    constexpr auto tooLarge = 100;
    if (static_cast<int>(result) == tooLarge) result = CURLE_OUT_OF_MEMORY;
    switch (result) {
    case CURLE_COULDNT_RESOLVE_HOST: return hasNetwork() ? Code::cannotFindHost : Code::notConnectedToInternet;
    case CURLE_COULDNT_RESOLVE_PROXY: return hasNetwork() ? Code::dnsLookupFailed : Code::notConnectedToInternet;
    case CURLE_COULDNT_CONNECT: return connectFailure(transfer);
    case CURLE_PROXY: return Code::cannotConnectToHost;
    case CURLE_OPERATION_TIMEDOUT: return Code::timedOut;
    case CURLE_PEER_FAILED_VERIFICATION: return Code::serverCertificateUntrusted;
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_CACERT_BADFILE:
    case CURLE_SSL_ENGINE_INITFAILED: return Code::secureConnectionFailed;
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR: return lossOfConnection(transfer);
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE: return Code::networkConnectionLost;
    // The URL's scheme was checked before, so the unsupported protocol is the answer's: HTTP/0.9, or none.
    // A line of the head is longer than libcurl takes.
    case CURLE_OUT_OF_MEMORY:
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_BAD_CONTENT_ENCODING: return Code::badServerResponse;
    case CURLE_FILESIZE_EXCEEDED: return Code::dataLengthExceedsMaximum;
    default: return Code::unknown;
    }
}

}  // namespace larkspan::adapters
