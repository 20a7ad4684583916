#pragma once

#include <map>
#include <string>

/// The fakes that are alive, so that a test can be failed for what it leaves referenced.
class CLivingFakes
{
public:
    static CLivingFakes& Get();

    void Add(const void* pFake, const char* pszName) { m_fakes[pFake] = pszName; }
    void Remove(const void* pFake) { m_fakes.erase(pFake); }

    size_t GetCount() const { return m_fakes.size(); }
    /// The names of all, each once for each object; they are no longer watched afterwards.
    std::string TakeAll();

private:
    std::map<const void*, const char*> m_fakes;
};
