#include "bench/script/EventJournal.h"

#include "bench/com/CountedObject.h"
#include "bench/protocol/Json.h"
#include "bench/script/EventListener.h"
#include "framework/ComQuery.h"

#include <exdispid.h>
#include <ocidl.h>

#include <filesystem>

using Microsoft::WRL::ComPtr;

bool CEventJournal::Open(const std::wstring& serverAddress, const std::wstring& file)
{
    m_strServerAddress = serverAddress;
    if (file.empty())
        return true;
    m_file.open(std::filesystem::path(file), std::ios::binary);
    return m_file.is_open();
}

void CEventJournal::Connect(int nTab, IWebBrowser2* pBrowser)
{
    ComPtr<IConnectionPoint> spPoint;
    const auto spContainer = QueryFor<IConnectionPointContainer>(pBrowser);
    DWORD dwCookie = 0;
    if (spContainer && SUCCEEDED(spContainer->FindConnectionPoint(DIID_DWebBrowserEvents2, &spPoint)))
        spPoint->Advise(MakeObject<CEventListener>(*this, nTab, pBrowser).Get(), &dwCookie);
}

void CEventJournal::Add(const std::wstring& line)
{
    const std::lock_guard lock(m_lock);
    m_lines.push_back(line);
    // Written through, so that the file tells what happened before a crash.
    if (m_file.is_open())
        m_file << ToUtf8(line) << std::endl;
}

std::wstring CEventJournal::ShortenAddress(const std::wstring& address) const
{
    if (!m_strServerAddress.empty() && address.starts_with(m_strServerAddress))
        return address.substr(m_strServerAddress.size() - 1);
    return address;
}

size_t CEventJournal::GetCount() const
{
    const std::lock_guard lock(m_lock);
    return m_lines.size();
}

size_t CEventJournal::Find(const std::wstring& text, size_t nFrom) const
{
    const std::lock_guard lock(m_lock);
    while (nFrom < m_lines.size() && m_lines[nFrom].find(text) == std::wstring::npos)
        ++nFrom;
    return std::min(nFrom, m_lines.size());
}
