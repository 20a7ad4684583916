// Overwrites all memory that this program frees, so that what is used afterwards fails instead of working by luck.

#include <malloc.h>

#include <cstdlib>
#include <cstring>
#include <new>

namespace
{
constexpr int Poison = 0xDD;
}

void operator delete(void* pMemory) noexcept
{
    if (pMemory != nullptr)
        std::memset(pMemory, Poison, _msize(pMemory));
    std::free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept
{
    operator delete(pMemory);
}
