#pragma once

#include "support/LocalizedError.h"

namespace larkspan::platform {

/// A failure of a request without a usable answer.
class URLError : public support::LocalizedError {
public:
    enum class Code {
        notConnectedToInternet,
        networkConnectionLost,
        dnsLookupFailed,
        cannotFindHost,
        cannotConnectToHost,
        internationalRoamingOff,
        callIsActive,
        dataNotAllowed,
        timedOut,
        cancelled,
        secureConnectionFailed,
        serverCertificateUntrusted,
        badServerResponse,
        dataLengthExceedsMaximum,
        userAuthenticationRequired,
        unknown,
    };

    explicit URLError(Code code);

    Code code() const { return code_; }

private:
    Code code_;
};

}  // namespace larkspan::platform
