#pragma once

#include <string>
#include <string_view>

namespace larkspan::incidents {

/// `host` in the letters that domain names are registered with (RFC 3492): "bücher.example" is "xn--bcher-kva.example",
/// so a host in look-alike letters of another script cannot pass for the one that it imitates.
std::string asciiDomainName(std::string_view host);

}  // namespace larkspan::incidents
