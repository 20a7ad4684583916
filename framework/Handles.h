#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

/// Deleter of a platform handle: calls the closing function that the handle's kind asks for.
template <auto CloseFunction>
struct CHandleCloser
{
    template <class T>
    void operator()(T* handle) const
    {
        CloseFunction(handle);
    }
};

/// Owner of a platform handle: null when empty, closed once when it goes out of scope.
template <class Handle, auto CloseFunction>
using CUniqueHandle = std::unique_ptr<std::remove_pointer_t<Handle>, CHandleCloser<CloseFunction>>;

using CUniqueKernelHandle = CUniqueHandle<HANDLE, CloseHandle>;
using CUniqueModule = CUniqueHandle<HMODULE, FreeLibrary>;
using CUniqueRegistryKey = CUniqueHandle<HKEY, RegCloseKey>;
using CUniqueBitmap = CUniqueHandle<HBITMAP, DeleteObject>;
