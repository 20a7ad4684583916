#pragma once

#include <windows.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What the fakes of one test have in common: the log of their calls, in order, and the plan of which of them fail.
/// Each test starts with an empty log and no plan.
class CFakeCalls
{
public:
    static CFakeCalls& Get();

    /// Forgets log and plan.
    void Reset();

    /// Logs the call. A result means that the call must do nothing but return it.
    std::optional<HRESULT> Record(const char* pszObject, const char* pszMethod);

    /// Makes the n-th call from now on fail, counted from 1 over all fakes, QueryInterface included. With S_OK the call
    /// claims success, with its out pointer null.
    void FailCall(size_t n, HRESULT hr);
    /// Lets the call that FailCall named succeed if it is still to come.
    void StopFailing() { m_nCallsToFailure = 0; }
    /// Whether the call that FailCall named has come.
    bool HasFailed() const { return m_bHasFailed; }
    /// Makes all calls of a name ("WebBrowser.get_Document") fail.
    void FailAll(const std::string& strName, HRESULT hr) { m_failingNames[strName] = hr; }
    /// Does something within the next call of the name, before it answers: the browser re-enters, a page goes.
    void ActIn(const std::string& strName, std::function<void()> action) { m_actions[strName] = std::move(action); }

    /// The names of the calls so far ("WebBrowser.Navigate"), without those of QueryInterface.
    std::vector<std::string> GetNames() const;
    /// How often the call was made.
    size_t CountOf(const std::string& strName) const;
    /// All calls since the start or the last ClearLog, those of QueryInterface included.
    size_t GetCount() const { return m_calls.size(); }
    /// Forgets the log, not the plan.
    void ClearLog() { m_calls.clear(); }

private:
    struct CCall
    {
        const char* pszObject;
        const char* pszMethod;

        bool IsQuery() const;
        std::string GetName() const;
    };

    std::vector<CCall> m_calls;
    void Act(const std::string& strName);

    std::map<std::string, HRESULT> m_failingNames;
    std::map<std::string, std::function<void()>> m_actions;
    size_t m_nCallsToFailure = 0; ///< 0: none is planned
    HRESULT m_hrFailure = S_OK;
    bool m_bHasFailed = false;
};

/// Runs the action once for each call it makes to a fake, with that call failing, and at last with none failing.
template <class Action>
void ForEachFailingCall(HRESULT hr, Action action)
{
    constexpr size_t nMostCalls = 10000; // an action that never comes through whole ends here
    CFakeCalls& calls = CFakeCalls::Get();
    for (size_t n = 1; n <= nMostCalls; ++n)
    {
        calls.Reset();
        calls.FailCall(n, hr);
        action();
        if (calls.HasFailed())
            continue;
        EXPECT_GT(n, 1u) << "the action makes no call";
        return;
    }
    ADD_FAILURE() << "the action never comes through whole";
}
