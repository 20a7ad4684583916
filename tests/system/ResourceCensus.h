#pragma once

#include <windows.h>

#include <ostream>

/// What this process holds of the system at one moment. Two counts can be compared for what was left over in between.
struct CResourceCensus
{
    size_t nGdiObjects;
    size_t nKernelHandles;
    size_t nWindows; ///< of all threads, children and message-only windows included

    static CResourceCensus Take();

    bool operator==(const CResourceCensus&) const = default;
};

/// For the messages of failed tests.
std::ostream& operator<<(std::ostream& stream, const CResourceCensus& census);

/// The blocks that are allocated in all heaps of this process. The platform's own come and go, so two counts are never
/// quite the same.
size_t CountHeapBlocks();
