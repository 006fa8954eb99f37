// Replaces the program's allocation: what C++ objects held is overwritten when they release it, so that the API key
// stays in memory only while something works with it. It passes through texts, coroutines and callbacks, each of which
// has its copy; here none can be forgotten.

#include <malloc.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

/// No text with the key is longer, and the service's long answers, which do not contain it, are not written twice.
constexpr std::size_t longestSecret = 16 * 1024;

void release(void* memory, std::size_t size)
{
    if (size <= longestSecret) ::explicit_bzero(memory, size);
    std::free(memory);
}

}  // namespace

void* operator new(std::size_t size)
{
    for (;;) {
        if (auto* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
        const auto handler = std::get_new_handler();
        if (!handler) throw std::bad_alloc();
        handler();
    }
}

void operator delete(void* memory) noexcept
{
    if (memory) release(memory, ::malloc_usable_size(memory));
}

void operator delete(void* memory, std::size_t size) noexcept
{
    if (memory) release(memory, size);
}
