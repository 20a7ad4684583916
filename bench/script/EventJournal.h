#pragma once

#include "bench/window/EventTap.h"

#include <windows.h>

#include <fstream>
#include <mutex>
#include <string>
#include <vector>

/// Keeps the events of all browsers of the process, in the order in which they were told: a line for each, with the
/// tab's number, the event's name, "page" or "frame", the address and what else matters. Addresses of the bench's own
/// pages stand without their server, so that the lines of two runs can be compared. Scripts read them. Those in the
/// file of --log-events end with a bar and the frames of the page, by path and ready state.
class CEventJournal : public IEventTap
{
public:
    /// `serverAddress` is what is left out of addresses. The file may be empty for none; false when it can't be
    /// written.
    bool Open(const std::wstring& serverAddress, const std::wstring& file);

    void Connect(int nTab, IWebBrowser2* pBrowser) override;

    /// For the listeners.
    void Add(const std::wstring& line);
    /// Whether a file is kept, whose lines tell the frames of the page as well.
    bool IsWritten() const { return m_file.is_open(); }
    std::wstring ShortenAddress(const std::wstring& address) const;

    size_t GetCount() const;
    /// The first line from the place on that holds the text; its place, or the number of lines when there is none.
    size_t Find(const std::wstring& text, size_t nFrom) const;

private:
    std::wstring m_strServerAddress;
    mutable std::mutex m_lock;
    std::vector<std::wstring> m_lines;
    std::ofstream m_file;
};
