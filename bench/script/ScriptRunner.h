#pragma once

#include "bench/script/Script.h"
#include "bench/script/ScriptHost.h"
#include "bench/window/TabFrame.h"

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class CTab;
class CTabWindow;

/// What makes a script end: one line for a person.
struct CStepError
{
    std::wstring strText;
};

/// Takes the steps of a script, as a person would where that matters: with the keys and the mouse of the platform. All
/// of it runs on a thread of the script's own; every step has a time to be done in.
class CScriptRunner
{
public:
    /// The pictures go to the folder, which is made if need be.
    CScriptRunner(IScriptHost& host, const std::wstring& outputFolder);

    /// Whether all steps are known and have what they need; else `error` is one line that names the place.
    static bool Check(const std::vector<CStep>& steps, std::wstring& error);
    /// The names of all steps with what follows them, for people.
    static std::wstring GetStepList();

    /// Takes one step after the other. False when one failed; `error` is then one line that names the place.
    bool Run(const std::vector<CStep>& steps, std::wstring& error);

private:
    using Arguments = std::vector<std::wstring>;
    struct CStepRow;
    static const CStepRow stepTable[];
    static const CStepRow* FindRow(const CStep& step);

    // The page.
    void Navigate(const Arguments& arguments);
    void EnterAddress(const Arguments& arguments);
    void ClickLink(const Arguments& arguments);
    void ClickElement(const Arguments& arguments);
    void Reload(const Arguments& arguments);
    void GoBack(const Arguments& arguments);
    void GoForward(const Arguments& arguments);
    void WaitForLoad(const Arguments& arguments);
    void WaitForEvent(const Arguments& arguments);
    void ExpectAddress(const Arguments& arguments);
    void ExpectTitle(const Arguments& arguments);
    void ExpectStatus(const Arguments& arguments);
    void ExpectInPage(const Arguments& arguments);
    void ExpectBack(const Arguments& arguments);

    // Keys, mouse and toolbar.
    void Type(const Arguments& arguments);
    void PressKey(const Arguments& arguments);
    void PressButton(const Arguments& arguments);
    void DropDown(const Arguments& arguments);
    void OpenChevron(const Arguments& arguments);
    void ExpectMenu(const Arguments& arguments);
    /// What the box reads that stands over a button of the toolbar.
    void ExpectBox(const Arguments& arguments);
    void ExpectOwnRow(const Arguments& arguments);
    void ExpectFocus(const Arguments& arguments);
    void MovePointer(const Arguments& arguments);

    // Windows.
    void OpenWindow(const Arguments& arguments);
    void OpenTab(const Arguments& arguments);
    void CloseTab(const Arguments& arguments);
    void CloseWindow(const Arguments& arguments);
    void SelectTab(const Arguments& arguments);
    void SelectWindow(const Arguments& arguments);
    void ExpectTabs(const Arguments& arguments);
    void ExpectWindows(const Arguments& arguments);
    void ExpectToolbar(const Arguments& arguments);
    void Resize(const Arguments& arguments);
    void SetVisualStyle(const Arguments& arguments);
    void ExpectDialog(const Arguments& arguments);
    void AnswerDialog(const Arguments& arguments);
    void TakePicture(const Arguments& arguments);

    /// Has something done with the chosen window on its thread, or with its tab on the tab's.
    void OnFrame(const std::function<void(CFrameWindow&)>& task);
    void OnTab(const std::function<void(CTabWindow&)>& task);
    std::shared_ptr<CTab> GetTab();
    CTabState GetState();
    HWND GetFrameWindow();
    size_t CountFrames();

    /// Waits until the condition holds, for as long as a step may take.
    void WaitUntil(const std::function<bool()>& condition, const std::wstring& what);
    /// What the page's script answers, as text of JSON.
    std::wstring AskPage(const std::wstring& expression);
    /// Waits until the expression gives an element that shows, and clicks it.
    void ClickInPage(const std::wstring& elementExpression, const std::wstring& what);
    /// In coordinates of the screen.
    RECT GetButtonRect(int nIndex);
    void ClickScreen(POINT point);
    /// Waits until all that the engine has told so far and all input has reached the window and has been drawn.
    void Settle();
    /// From here on later events count.
    void Mark();

    IScriptHost& m_host;
    const std::wstring m_strOutput;
    size_t m_nWindow = 0; ///< place of the chosen window
    size_t m_nMark = 0;   ///< place in the journal behind which a step waits for events
};
