#pragma once

#include "bench/com/CountedObject.h"

#include <windows.h>
#include <oaidl.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

/// A sink of the browser's events that writes each down in one line, such as "BeforeNavigate2 left /page.html".
class CEventRecorder : public CCountedObject<CEventRecorder, IDispatch>
{
    BEGIN_COM_MAP(CEventRecorder)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    using Action = std::function<void(DISPID dispid, const DISPPARAMS& params)>;

    /// Called within each event, after it was written down.
    void SetAction(Action action) { m_action = std::move(action); }
    /// How an address is written, and how the frame of an object.
    std::function<std::string(const std::wstring& url)> m_nameUrl;
    std::function<std::string(IDispatch* pFrame)> m_nameFrame;

    std::vector<std::string> m_lines;

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID dispid, REFIID iid, LCID lcid, WORD wFlags, DISPPARAMS* pParams, VARIANT* pvResult,
                        EXCEPINFO* pExcepInfo, UINT* pnArgErr) override;

private:
    std::string Describe(DISPID dispid, const DISPPARAMS& params) const;

    Action m_action;
};
