#include "support/Utf8.h"

#include <cstddef>
#include <cstdint>

namespace larkspan::support {

namespace {

struct LeadByte {
    std::size_t continuations;
    std::uint32_t bits;
    std::uint32_t smallest;
};

constexpr LeadByte invalidLead{0, 0, 1};

constexpr LeadByte readLead(std::uint8_t byte)
{
    if (byte < 0x80) return {0, byte, 0};
    if (byte >> 5 == 0b110) return {1, byte & 0x1Fu, 0x80};
    if (byte >> 4 == 0b1110) return {2, byte & 0x0Fu, 0x800};
    if (byte >> 3 == 0b11110) return {3, byte & 0x07u, 0x1'0000};
    return invalidLead;
}

constexpr bool isScalarValue(std::uint32_t code)
{
    return code <= 0x10'FFFF && (code < 0xD800 || code > 0xDFFF);
}

}  // namespace

bool isValidUtf8(std::string_view bytes)
{
    for (std::size_t at = 0; at < bytes.size();) {
        auto [continuations, code, smallest] = readLead(static_cast<std::uint8_t>(bytes[at++]));
        for (; continuations > 0; --continuations, ++at) {
            if (at == bytes.size()) return false;
            const auto next = static_cast<std::uint8_t>(bytes[at]);
            if (next >> 6 != 0b10) return false;
            code = code << 6 | (next & 0x3Fu);
        }
        if (code < smallest || !isScalarValue(code)) return false;
    }
    return true;
}

}  // namespace larkspan::support
