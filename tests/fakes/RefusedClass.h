#pragma once

#include <windows.h>
#include <unknwn.h>

/// While the object lives, nobody in this process can create objects of the class, whatever is registered on the
/// machine. COM must be initialised.
class CRefusedClass
{
public:
    /// `dwContext` is where clients look for the class, of CLSCTX.
    CRefusedClass(REFCLSID clsid, DWORD dwContext);
    CRefusedClass(const CRefusedClass&) = delete;
    CRefusedClass& operator=(const CRefusedClass&) = delete;
    ~CRefusedClass();

private:
    DWORD m_dwRegistration = 0;
};
