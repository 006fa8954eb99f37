// What may be sent as the key: nothing that ends its header.

#include <string>

#include "Target.h"
#include "api/APIKey.h"
#include "support/Trimming.h"

using namespace larkspan;
using fuzz::require;

FUZZ_TARGET(api_key, input)
{
    const bool canBeSent = api::canStandInHeader(input);
    bool isVisible = true;
    for (const unsigned char byte : input) isVisible = isVisible && byte > ' ' && byte < 0x7F;
    require(canBeSent == isVisible, "a key of visible ASCII can be sent, and no other");
    require(!canBeSent || support::trimmed(input) == input, "a key that can be sent has nothing to trim");
    require(!api::canStandInHeader(std::string(input) + "\r\nX-Injected: 1"), "a key never ends its header");
}
