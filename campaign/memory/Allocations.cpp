#include "memory/Allocations.h"

#include <cerrno>

// The C library's own, under the names that it offers to programs that define the usual ones.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}

namespace {

constexpr auto none = static_cast<std::size_t>(-1);

thread_local bool isCounting = false;
thread_local std::size_t requests = 0;
thread_local std::size_t refusedRequest = none;

bool isRefused()
{
    if (!isCounting || requests++ != refusedRequest) return false;
    errno = ENOMEM;
    return true;
}

}  // namespace

extern "C" {

void* malloc(std::size_t size)
{
    return isRefused() ? nullptr : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    return isRefused() ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size)
{
    return isRefused() ? nullptr : __libc_realloc(memory, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return isRefused() ? nullptr : __libc_memalign(alignment, size);
}

int posix_memalign(void** memory, std::size_t alignment, std::size_t size)
{
    if (isRefused()) return ENOMEM;
    *memory = __libc_memalign(alignment, size);
    return *memory ? 0 : ENOMEM;
}
}

namespace larkspan::campaign {

Allocations::Allocations(std::size_t refused)
{
    requests = 0;
    refusedRequest = refused;
    isCounting = true;
}

Allocations::~Allocations()
{
    isCounting = false;
}

std::size_t Allocations::count() const
{
    return requests;
}

}  // namespace larkspan::campaign
