#pragma once

#include <string>
#include <string_view>

namespace larkspan::messages {

/// `host` in the ASCII form of domain names (RFC 3492): "bücher.example" gives "xn--bcher-kva.example", so that a host
/// in look-alike letters of another script is not mistaken for the one that it imitates.
std::string asciiDomainName(std::string_view host);

}  // namespace larkspan::messages
