#include "bench/engine/Engine.h"

#include "bench/engine/EngineProcess.h"
#include "bench/protocol/Connection.h"

namespace
{
/// The engine's own connection, which is open for one call: its events are of no interest.
class CBrowserCall : private IProtocolEvents
{
public:
    explicit CBrowserCall(const CEngineAddress& address)
    {
        m_bOpen = m_connection.Open(address.wPort, address.strBrowserPath);
    }

    std::optional<Json> Call(const char* pszMethod, Json params)
    {
        return m_bOpen ? m_connection.Call(pszMethod, std::move(params)) : std::nullopt;
    }

private:
    void OnProtocolEvent(const std::string&, const Json&) override {}
    bool IsUrgent(const std::string&) const override { return false; }
    void OnProtocolClosed() override {}

    CConnection m_connection {*this};
    bool m_bOpen = false;
};
} // namespace

CEngine::CEngine() = default;
CEngine::~CEngine() = default;

bool CEngine::Start(const std::wstring& program, std::wstring& error)
{
    std::unique_ptr<CEngineProcess> process = CEngineProcess::Create(program);
    if (!process->Start(m_address, error))
        return false;
    m_process = std::move(process);
    return true;
}

bool CEngine::IsRunning() const
{
    return m_process && m_process->IsRunning();
}

std::string CEngine::OpenTarget(std::wstring& error)
{
    if (IsRunning())
    {
        // In a window of its own the page counts as seen, whatever other pages there are.
        const auto result =
            CBrowserCall(m_address).Call("Target.createTarget", {{"url", "about:blank"}, {"newWindow", true}});
        if (result)
            return GetNarrowText(*result, "targetId");
    }
    error = L"The engine doesn't answer.";
    return {};
}

void CEngine::CloseTarget(const std::string& id)
{
    if (IsRunning())
        CBrowserCall(m_address).Call("Target.closeTarget", {{"targetId", id}});
}
