#pragma once

#include <windows.h>

class CComModule;

/// Registers the program as the local server of the module's class, with its type library, open to clients of low
/// rights and started by the browser without a question. Needs the rights of an administrator.
HRESULT RegisterBroker(const CComModule& module);

/// Removes all of it.
HRESULT UnregisterBroker(const CComModule& module);
