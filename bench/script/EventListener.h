#pragma once

#include "bench/com/CountedObject.h"

#include <windows.h>
#include <oaidl.h>

#include <string>

class CEventJournal;

/// A sink of DWebBrowserEvents2 that writes what it hears into the journal.
class CEventListener : public CCountedObject<CEventListener, IDispatch>
{
    BEGIN_COM_MAP(CEventListener)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    /// `pBrowser` is the page's own browser, by which frames are told from pages; it isn't held.
    CEventListener(CEventJournal& journal, int nTab, IUnknown* pBrowser);

    STDMETHODIMP GetTypeInfoCount(UINT* pnCount) override;
    STDMETHODIMP GetTypeInfo(UINT nInfo, LCID lcid, ITypeInfo** ppInfo) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* pszNames, UINT nNames, LCID lcid, DISPID* pIds) override;
    STDMETHODIMP Invoke(DISPID dispid, REFIID iid, LCID lcid, WORD wFlags, DISPPARAMS* pParams, VARIANT* pvResult,
                        EXCEPINFO* pException, UINT* pnArgument) override;

private:
    std::wstring DescribeEvent(DISPID dispid, const DISPPARAMS& params) const;
    std::wstring Describe(const VARIANT& argument) const;
    std::wstring DescribeObject(IUnknown* pObject) const;

    CEventJournal& m_journal;
    const int m_nTab;
    IUnknown* m_pBrowser; ///< for comparison only
};
