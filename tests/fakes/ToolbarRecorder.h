#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>
#include <vector>

/// A toolbar message with what its record held when it was sent.
struct CToolbarMessage
{
    HWND hWnd;
    UINT nMessage;
    WPARAM wParam;
    LPARAM lParam;
    std::vector<TBBUTTON> buttons; ///< of TB_ADDBUTTONSW
    TBBUTTONINFOW buttonInfo;      ///< of TB_SETBUTTONINFOW
    TBMETRICS metrics;             ///< of TB_SETMETRICS
    std::wstring strText;          ///< of TB_ADDSTRINGW, with the terminators between its strings
};

/// Sees each TB_ message that is sent to a toolbar control of this thread while the recorder lives, those at the
/// control's creation included. One recorder at a time.
class CToolbarRecorder
{
public:
    CToolbarRecorder();
    CToolbarRecorder(const CToolbarRecorder&) = delete;
    CToolbarRecorder& operator=(const CToolbarRecorder&) = delete;
    ~CToolbarRecorder();

    const std::vector<CToolbarMessage>& GetMessages() const { return m_messages; }
    /// The messages of one number, in order.
    std::vector<CToolbarMessage> GetMessages(UINT nMessage) const;
    /// The numbers of all messages, in order.
    std::vector<UINT> GetNumbers() const;
    void Clear() { m_messages.clear(); }

private:
    static LRESULT CALLBACK OnMessageSent(int nCode, WPARAM wParam, LPARAM lParam);
    void Record(const CWPSTRUCT& sent);

    HHOOK m_hHook;
    std::vector<CToolbarMessage> m_messages;
};
