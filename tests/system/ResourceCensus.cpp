#include "tests/system/ResourceCensus.h"

#include <windows.h>
#include <winternl.h>

#include <algorithm>
#include <span>
#include <vector>

namespace
{
constexpr size_t nMostGdiIndices = 0x10000;

/// Some systems don't keep the count that GetGuiResources is made for; there the indices are tried one by one.
size_t CountGdiObjects()
{
    if (const DWORD nObjects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
        return nObjects;
    size_t nObjects = 0;
    for (size_t nIndex = 0; nIndex < nMostGdiIndices; ++nIndex)
        nObjects += GetObjectType(reinterpret_cast<HGDIOBJ>(nIndex)) != 0;
    return nObjects;
}

std::vector<BYTE> QueryAllHandles()
{
    std::vector<BYTE> data(1 << 16);
    ULONG cbNeeded = 0;
    while (NtQuerySystemInformation(SystemHandleInformation, data.data(), static_cast<ULONG>(data.size()), &cbNeeded) <
           0)
        data.resize(data.size() * 2);
    return data;
}

size_t CountKernelHandles()
{
    const std::vector<BYTE> data = QueryAllHandles();
    const auto* pInformation = reinterpret_cast<const SYSTEM_HANDLE_INFORMATION*>(data.data());
    const std::span handles(pInformation->Handle, pInformation->Count);
    return std::count_if(handles.begin(), handles.end(),
                         [](const SYSTEM_HANDLE_ENTRY& entry) { return entry.OwnerPid == GetCurrentProcessId(); });
}

bool IsOurs(HWND hWnd)
{
    DWORD dwProcess = 0;
    GetWindowThreadProcessId(hWnd, &dwProcess);
    return dwProcess == GetCurrentProcessId();
}

BOOL CALLBACK CountWindow(HWND hWnd, LPARAM lParam)
{
    *reinterpret_cast<size_t*>(lParam) += IsOurs(hWnd);
    return TRUE;
}

size_t CountWindows()
{
    size_t nWindows = 0;
    EnumChildWindows(GetDesktopWindow(), CountWindow, reinterpret_cast<LPARAM>(&nWindows));
    for (HWND hWnd = nullptr; (hWnd = FindWindowExW(HWND_MESSAGE, hWnd, nullptr, nullptr)) != nullptr;)
        nWindows += IsOurs(hWnd);
    return nWindows;
}

size_t CountBlocks(HANDLE hHeap)
{
    size_t nBlocks = 0;
    HeapLock(hHeap);
    for (PROCESS_HEAP_ENTRY entry = {}; HeapWalk(hHeap, &entry);)
        nBlocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    HeapUnlock(hHeap);
    return nBlocks;
}

} // namespace

CResourceCensus CResourceCensus::Take()
{
    return {CountGdiObjects(), CountKernelHandles(), CountWindows()};
}

std::ostream& operator<<(std::ostream& stream, const CResourceCensus& census)
{
    return stream << census.nGdiObjects << " GDI objects, " << census.nKernelHandles << " kernel handles, "
                  << census.nWindows << " windows";
}

size_t CountHeapBlocks()
{
    HANDLE heaps[64];
    const DWORD nHeaps = std::min<DWORD>(GetProcessHeaps(ARRAYSIZE(heaps), heaps), ARRAYSIZE(heaps));
    size_t nBlocks = 0;
    for (const HANDLE hHeap : std::span(heaps, nHeaps))
        nBlocks += CountBlocks(hHeap);
    return nBlocks;
}
