// The entry of libFuzzer, for the one target that is linked. What a target throws ends the process, which libFuzzer
// reports with the input.

#include <cstddef>
#include <cstdint>

#include "Target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    larkspan::fuzz::targets().front().check({reinterpret_cast<const char*>(data), size});
    return 0;
}
