#pragma once

#include "framework/ComModule.h"

#include <windows.h>

#include <vector>

/// Makes a test what the library is: COM initialised on the thread, the module with the product's classes, and the
/// classes to be had by CoCreateInstance.
class CProductModule
{
public:
    CProductModule();
    CProductModule(const CProductModule&) = delete;
    CProductModule& operator=(const CProductModule&) = delete;
    ~CProductModule();

    /// Objects of the module that are alive, its class factories apart.
    LONG GetObjectCount() const { return m_module.GetLockCount() - static_cast<LONG>(m_registrations.size()); }
    /// Makes the classes unknown.
    void RevokeClasses();

private:
    CComModule m_module;
    std::vector<DWORD> m_registrations;
};
