#include "presentation/text/WebAddress.h"

#include "support/IgnoringCase.h"

namespace larkspan::presentation {

bool isWebAddress(std::string_view address)
{
    const auto scheme = address.substr(0, address.find("://"));
    return scheme.size() < address.size()
        && (support::equalsIgnoringCase(scheme, "http") || support::equalsIgnoringCase(scheme, "https"));
}

}  // namespace larkspan::presentation
