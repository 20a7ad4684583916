// Memory that is given back is overwritten first, so that a test in which something still uses it fails.

#include <malloc.h>

#include <cstdlib>
#include <cstring>
#include <new>

namespace
{
constexpr int Poison = 0xDD; // makes no valid address

void Free(void* pMemory)
{
    if (pMemory == nullptr)
        return;
    std::memset(pMemory, Poison, _msize(pMemory));
    std::free(pMemory);
}
} // namespace

void* operator new(std::size_t nSize)
{
    if (void* pMemory = std::malloc(nSize != 0 ? nSize : 1))
        return pMemory;
    throw std::bad_alloc();
}

void operator delete(void* pMemory) noexcept
{
    Free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept
{
    Free(pMemory);
}
