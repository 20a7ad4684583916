#include "tests/fakes/LivingFakes.h"

CLivingFakes& CLivingFakes::Get()
{
    static CLivingFakes fakes;
    return fakes;
}

std::string CLivingFakes::TakeAll()
{
    std::string strNames;
    for (const auto& [pFake, pszName] : m_fakes)
        strNames += (strNames.empty() ? "" : ", ") + std::string(pszName);
    m_fakes.clear();
    return strNames;
}
