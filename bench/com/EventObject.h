#pragma once

#include "bench/com/CountedObject.h"
#include "bench/engine/ScriptError.h"
#include "notimpl/HTMLEventObj.h"

#include <windows.h>
#include <mshtml.h>

/// The event object of a script error: errorLine, errorCharacter and errorCode as VT_I4, errorMessage and errorUrl as
/// VT_BSTR, by name through IDispatch.
class CEventObject : public CCountedObject<CEventObject, CHTMLEventObjNotImpl>
{
    BEGIN_COM_MAP(CEventObject)
        COM_INTERFACE_ENTRY(IHTMLEventObj)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    explicit CEventObject(CScriptError error) : m_error(std::move(error)) {}

    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* ppszNames, UINT cNames, LCID lcid, DISPID* pDispids) override;
    STDMETHODIMP Invoke(DISPID dispid, REFIID iid, LCID lcid, WORD wFlags, DISPPARAMS* pParams, VARIANT* pvResult,
                        EXCEPINFO* pExcepInfo, UINT* pnArgErr) override;
    STDMETHODIMP get_type(BSTR* pbstrType) override;

private:
    CScriptError m_error;
};
