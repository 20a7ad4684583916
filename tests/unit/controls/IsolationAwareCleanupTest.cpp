// The wrappers after the clean-up at unload, in a program of its own, since the clean-up is for good.

#include "controls/IsolationAware.h"
#include "framework/Handles.h"
#include "tests/unit/controls/ActivationContext.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <string>

namespace
{
std::string g_strDebugOutput;

/// Collects the texts that the process writes to the debug output, which Windows raises as exceptions.
class CDebugOutput
{
public:
    CDebugOutput() : m_pHandler(AddVectoredExceptionHandler(TRUE, &OnException)) { g_strDebugOutput.clear(); }
    CDebugOutput(const CDebugOutput&) = delete;
    CDebugOutput& operator=(const CDebugOutput&) = delete;
    ~CDebugOutput() { RemoveVectoredExceptionHandler(m_pHandler); }

private:
    static LONG CALLBACK OnException(EXCEPTION_POINTERS* pException)
    {
        constexpr DWORD printedText = 0x40010006;     // DBG_PRINTEXCEPTION_C
        constexpr DWORD printedWideText = 0x4001000A; // DBG_PRINTEXCEPTION_WIDE_C
        const EXCEPTION_RECORD& record = *pException->ExceptionRecord;
        if (record.ExceptionCode == printedWideText)
        {
            const std::wstring strText(reinterpret_cast<const wchar_t*>(record.ExceptionInformation[1]));
            g_strDebugOutput.assign(strText.begin(), strText.end());
            return EXCEPTION_CONTINUE_EXECUTION;
        }
        if (record.ExceptionCode != printedText)
            return EXCEPTION_CONTINUE_SEARCH;
        g_strDebugOutput = reinterpret_cast<const char*>(record.ExceptionInformation[1]);
        return EXCEPTION_CONTINUE_EXECUTION;
    }

    void* m_pHandler;
};

constexpr char Complaint[] = "IsolationAware function called after IsolationAwareCleanup\n";
} // namespace

TEST(IsolationAwareAfterItsCleanup, SaysSoAndGoesOn)
{
    CUniqueModule library(IsolatedLoadLibrary(L"version.dll"));
    IsolationAwareCleanup();
    const CDebugOutput output;
    library.reset(IsolatedLoadLibrary(L"version.dll"));
    EXPECT_NE(nullptr, library);
    EXPECT_EQ(Complaint, g_strDebugOutput);
    EXPECT_EQ(nullptr, GetContextInForce());
    IsolationAwareCleanup();
}
