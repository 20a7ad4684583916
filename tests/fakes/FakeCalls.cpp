#include "tests/fakes/FakeCalls.h"

#include "tests/fakes/LivingFakes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace
{
/// Gives each test a fresh log and fails it when it leaves a fake alive.
class CFakesListener : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override { CFakeCalls::Get().Reset(); }

    void OnTestEnd(const testing::TestInfo&) override
    {
        const std::string strLeaks = CLivingFakes::Get().TakeAll();
        EXPECT_EQ("", strLeaks) << "fakes still referenced at the end of the test";
    }
};

const bool bListening = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new CFakesListener);
    return true;
}();
} // namespace

CFakeCalls& CFakeCalls::Get()
{
    static CFakeCalls calls;
    return calls;
}

void CFakeCalls::Reset()
{
    *this = CFakeCalls();
}

std::optional<HRESULT> CFakeCalls::Record(const char* pszObject, const char* pszMethod)
{
    m_calls.push_back({pszObject, pszMethod});
    if (!m_actions.empty())
        Act(m_calls.back().GetName());
    if (m_nCallsToFailure != 0 && --m_nCallsToFailure == 0)
    {
        m_bHasFailed = true;
        return m_hrFailure;
    }
    if (m_failingNames.empty())
        return std::nullopt;
    const auto found = m_failingNames.find(CCall {pszObject, pszMethod}.GetName());
    return found == m_failingNames.end() ? std::nullopt : std::optional(found->second);
}

void CFakeCalls::Act(const std::string& strName)
{
    if (auto action = m_actions.extract(strName))
        action.mapped()();
}

void CFakeCalls::FailCall(size_t n, HRESULT hr)
{
    m_nCallsToFailure = n;
    m_hrFailure = hr;
    m_bHasFailed = false;
}

std::vector<std::string> CFakeCalls::GetNames() const
{
    std::vector<std::string> names;
    for (const CCall& call : m_calls)
    {
        if (!call.IsQuery())
            names.push_back(call.GetName());
    }
    return names;
}

size_t CFakeCalls::CountOf(const std::string& strName) const
{
    return std::count_if(m_calls.begin(), m_calls.end(), [&](const CCall& call) { return call.GetName() == strName; });
}

bool CFakeCalls::CCall::IsQuery() const
{
    return std::strcmp(pszMethod, "QueryInterface") == 0;
}

std::string CFakeCalls::CCall::GetName() const
{
    return std::string(pszObject) + "." + pszMethod;
}
