#include "bench/com/Document.h"
#include "bench/com/FrameBrowser.h"
#include "bench/com/Variants.h"
#include "bench/com/WebBrowser.h"

#include <comutil.h>
#include <exdispid.h>

#include <algorithm>

using Microsoft::WRL::ComPtr;

namespace
{
VARIANT OfObject(IDispatch* pObject)
{
    VARIANT v = {};
    V_VT(&v) = VT_DISPATCH;
    V_DISPATCH(&v) = pObject;
    return v;
}

/// The bytes as an array; empty for none.
_variant_t MakePostData(const std::string& bytes)
{
    _variant_t data;
    SAFEARRAY* const pArray =
        bytes.empty() ? nullptr : SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    if (pArray == nullptr)
        return data;
    V_VT(&data) = VT_ARRAY | VT_UI1;
    V_ARRAY(&data) = pArray;
    void* pBytes = nullptr;
    if (SUCCEEDED(SafeArrayAccessData(pArray, &pBytes)))
    {
        std::copy(bytes.begin(), bytes.end(), static_cast<char*>(pBytes));
        SafeArrayUnaccessData(pArray);
    }
    return data;
}
} // namespace

bool CWebBrowser::OnBeforeNavigate(const CNavigation& navigation)
{
    const auto spFrame = GetFrameBrowser(navigation.strFrameId);
    const CPageFrame* const pFrame = m_page.GetFrames().Find(navigation.strFrameId);
    if (!spFrame || pFrame == nullptr)
        return true;
    _variant_t url(navigation.strUrl.c_str());
    _variant_t flags(0L);
    _variant_t target(pFrame->strName.c_str());
    _variant_t headers(navigation.strHeaders.c_str());
    _variant_t postData = MakePostData(navigation.strPostData);
    // Post data is passed by two references, one in the other.
    VARIANT postReference = ByReference(postData);
    VARIANT_BOOL bCancel = VARIANT_FALSE;
    m_spEvents->Fire(DISPID_BEFORENAVIGATE2,
                     {OfObject(spFrame.Get()), ByReference(url), ByReference(flags), ByReference(target),
                      ByReference(postReference), ByReference(headers), ByReference(bCancel)});
    return bCancel == VARIANT_FALSE;
}

void CWebBrowser::OnDownloadBegin(const std::string&)
{
    m_spEvents->Fire(DISPID_DOWNLOADBEGIN);
}

void CWebBrowser::OnDownloadComplete(const std::string&)
{
    m_spEvents->Fire(DISPID_DOWNLOADCOMPLETE);
}

void CWebBrowser::OnNavigateComplete(const std::string& frameId)
{
    ForgetOldDocument(frameId);
    FireOfFrame(DISPID_NAVIGATECOMPLETE2, frameId);
}

void CWebBrowser::OnDocumentComplete(const std::string& frameId)
{
    FireOfFrame(DISPID_DOCUMENTCOMPLETE, frameId);
    if (m_page.GetFrames().IsTop(frameId))
        GetUIHandler()->UpdateUI();
}

void CWebBrowser::FireOfFrame(DISPID dispid, const std::string& frameId)
{
    const auto spFrame = GetFrameBrowser(frameId);
    const CPageFrame* const pFrame = m_page.GetFrames().Find(frameId);
    if (!spFrame || pFrame == nullptr)
        return;
    _variant_t url(pFrame->strUrl.c_str());
    m_spEvents->Fire(dispid, {OfObject(spFrame.Get()), ByReference(url)});
}

void CWebBrowser::OnNavigateError(const std::string& frameId, const std::wstring& failedUrl)
{
    const auto spFrame = GetFrameBrowser(frameId);
    const CPageFrame* const pFrame = m_page.GetFrames().Find(frameId);
    if (!spFrame || pFrame == nullptr)
        return;
    _variant_t url(failedUrl.c_str());
    _variant_t target(pFrame->strName.c_str());
    _variant_t status(static_cast<long>(INET_E_RESOURCE_NOT_FOUND));
    VARIANT_BOOL bCancel = VARIANT_FALSE;
    m_spEvents->Fire(DISPID_NAVIGATEERROR, {OfObject(spFrame.Get()), ByReference(url), ByReference(target),
                                            ByReference(status), ByReference(bCancel)});
}

void CWebBrowser::ForgetOldDocument(const std::string& frameId)
{
    const auto known = m_documents.find(frameId);
    if (known != m_documents.end() && !known->second->IsOnShow())
        m_documents.extract(known).mapped()->Detach();
}

void CWebBrowser::OnFrameGone(const std::string& frameId)
{
    ForgetOldDocument(frameId);
    if (const auto gone = m_frames.extract(frameId))
        gone.mapped()->Detach();
}

void CWebBrowser::OnTitleChanged(const std::wstring& title)
{
    _variant_t text(title.c_str());
    m_spEvents->Fire(DISPID_TITLECHANGE, {text});
}

void CWebBrowser::OnFileDownload(const std::string&)
{
    VARIANT activeDocument = {};
    V_VT(&activeDocument) = VT_BOOL;
    VARIANT_BOOL bCancel = VARIANT_FALSE;
    m_spEvents->Fire(DISPID_FILEDOWNLOAD, {activeDocument, ByReference(bCancel)});
}

void CWebBrowser::OnHistoryChanged()
{
    const auto tell = [this](CommandStateChangeConstants eCommand, bool bEnabled) {
        m_spEvents->Fire(DISPID_COMMANDSTATECHANGE, {_variant_t(static_cast<long>(eCommand)), _variant_t(bEnabled)});
    };
    tell(CSC_NAVIGATEBACK, m_page.CanGoBack());
    tell(CSC_NAVIGATEFORWARD, m_page.CanGoForward());
}

void CWebBrowser::OnScriptError(const CScriptError& error)
{
    const CPageFrame* const pFrame = m_page.GetFrames().Find(error.strFrameId);
    if (pFrame == nullptr)
        return;
    // Whoever was told may have shown another page meanwhile.
    const ComPtr<CDocument> spDocument = GetDocumentObject(*pFrame);
    if (!spDocument->ReportScriptError(error) && spDocument->IsOnShow())
        m_page.StopScripts();
}
