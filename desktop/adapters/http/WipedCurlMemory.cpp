#include "adapters/http/WipedCurlMemory.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace larkspan::adapters {

namespace {

void release(void* memory)
{
    if (memory) ::explicit_bzero(memory, ::malloc_usable_size(memory));
    std::free(memory);
}

void* resize(void* memory, std::size_t size)
{
    if (!memory) return std::malloc(size);
    auto* const moved = std::malloc(size);
    if (!moved) return nullptr;
    std::memcpy(moved, memory, std::min(size, ::malloc_usable_size(memory)));
    release(memory);
    return moved;
}

}  // namespace

CURLcode initialiseCurlWithWipedMemory()
{
    return curl_global_init_mem(CURL_GLOBAL_DEFAULT, &std::malloc, &release, &resize, &::strdup, &std::calloc);
}

}  // namespace larkspan::adapters
