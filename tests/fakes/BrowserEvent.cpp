#include "tests/fakes/BrowserEvent.h"

namespace
{
_variant_t ToVariant(IDispatch* pFrame)
{
    return _variant_t(pFrame);
}
} // namespace

CBrowserEvent CBrowserEvent::BeforeNavigate2(IDispatch* pFrame, const std::wstring& strUrl)
{
    CBrowserEvent event(DISPID_BEFORENAVIGATE2);
    event.AddCancel();
    event.AddReference(_variant_t(L"")); // headers
    event.AddReference(_variant_t());    // post data
    event.AddReference(_variant_t(L"")); // target
    event.AddReference(_variant_t(0L));  // flags
    event.AddReference(_variant_t(strUrl.c_str()));
    event.AddValue(ToVariant(pFrame));
    return event;
}

CBrowserEvent CBrowserEvent::NavigateComplete2(IDispatch* pFrame, const std::wstring& strUrl)
{
    CBrowserEvent event(DISPID_NAVIGATECOMPLETE2);
    event.AddReference(_variant_t(strUrl.c_str()));
    event.AddValue(ToVariant(pFrame));
    return event;
}

CBrowserEvent CBrowserEvent::DocumentComplete(IDispatch* pFrame, const std::wstring& strUrl)
{
    CBrowserEvent event(DISPID_DOCUMENTCOMPLETE);
    event.AddReference(_variant_t(strUrl.c_str()));
    event.AddValue(ToVariant(pFrame));
    return event;
}

CBrowserEvent CBrowserEvent::FileDownload()
{
    CBrowserEvent event(DISPID_FILEDOWNLOAD);
    event.AddCancel();
    event.AddValue(_variant_t(false)); // active document
    return event;
}

CBrowserEvent CBrowserEvent::PropertyChange(const std::wstring& strName)
{
    CBrowserEvent event(DISPID_PROPERTYCHANGE);
    event.AddValue(_variant_t(strName.c_str()));
    return event;
}

CBrowserEvent CBrowserEvent::StatusTextChange(const std::wstring& strText)
{
    CBrowserEvent event(DISPID_STATUSTEXTCHANGE);
    event.AddValue(_variant_t(strText.c_str()));
    return event;
}

DISPPARAMS CBrowserEvent::GetParams()
{
    return {m_arguments.data(), nullptr, static_cast<UINT>(m_arguments.size()), 0};
}

void CBrowserEvent::AddReference(_variant_t vValue)
{
    m_values.push_back(std::move(vValue));
    VARIANT argument = {};
    V_VT(&argument) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&argument) = &m_values.back();
    m_arguments.push_back(argument);
}

void CBrowserEvent::AddValue(_variant_t vValue)
{
    m_values.push_back(std::move(vValue));
    m_arguments.push_back(m_values.back());
}

void CBrowserEvent::AddCancel()
{
    VARIANT argument = {};
    V_VT(&argument) = VT_BYREF | VT_BOOL;
    V_BOOLREF(&argument) = m_pbCancel.get();
    m_arguments.push_back(argument);
}
