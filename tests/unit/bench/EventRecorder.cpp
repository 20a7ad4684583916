#include "tests/unit/bench/EventRecorder.h"

#include "bench/protocol/Json.h"

#include <exdispid.h>

namespace
{
struct CEventName
{
    DISPID dispid;
    const char* pszName;
    int nFrame; ///< where the frame stands among the arguments, the last one first; -1 without one
};

const CEventName* FindName(DISPID dispid)
{
    static constexpr CEventName names[] = {
        {DISPID_BEFORENAVIGATE2, "BeforeNavigate2", 6},    {DISPID_NAVIGATECOMPLETE2, "NavigateComplete2", 1},
        {DISPID_DOCUMENTCOMPLETE, "DocumentComplete", 1},  {DISPID_DOWNLOADBEGIN, "DownloadBegin", -1},
        {DISPID_DOWNLOADCOMPLETE, "DownloadComplete", -1}, {DISPID_FILEDOWNLOAD, "FileDownload", -1},
        {DISPID_NAVIGATEERROR, "NavigateError", 4},        {DISPID_ONQUIT, "OnQuit", -1},
    };
    for (const CEventName& name : names)
        if (name.dispid == dispid)
            return &name;
    return nullptr;
}
} // namespace

STDMETHODIMP CEventRecorder::Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS* pParams, VARIANT*, EXCEPINFO*, UINT*)
{
    if (FindName(dispid) != nullptr)
        m_lines.push_back(Describe(dispid, *pParams));
    // The action may set another one.
    if (const Action action = m_action)
        action(dispid, *pParams);
    return S_OK;
}

std::string CEventRecorder::Describe(DISPID dispid, const DISPPARAMS& params) const
{
    const CEventName& name = *FindName(dispid);
    if (name.nFrame < 0)
        return name.pszName;
    const VARIANT& frame = params.rgvarg[name.nFrame];
    const VARIANT& url = params.rgvarg[name.nFrame - 1];
    if (V_VT(&frame) != VT_DISPATCH || V_VT(&url) != (VT_BYREF | VT_VARIANT) || V_VT(V_VARIANTREF(&url)) != VT_BSTR)
        return name.pszName + std::string(" with arguments of wrong types");
    return name.pszName + std::string(" ") + m_nameFrame(V_DISPATCH(&frame)) + " " +
           m_nameUrl(V_BSTR(V_VARIANTREF(&url)));
}
