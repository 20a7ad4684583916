#pragma once

#include <windows.h>
#include <comdef.h>

#include <new>

/// Runs the body of a COM operation, which answers an HRESULT, and turns what it throws into one:
/// no exception leaves a COM object.
template <class Body>
HRESULT ComBoundary(Body body) noexcept
{
    try
    {
        return body();
    }
    catch (const std::bad_alloc&)
    {
        return E_OUTOFMEMORY;
    }
    catch (const _com_error& error)
    {
        return error.Error();
    }
    catch (...)
    {
        return E_FAIL;
    }
}
