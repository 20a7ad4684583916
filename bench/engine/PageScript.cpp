#include "bench/engine/Page.h"
#include "bench/engine/Url.h"

#include <algorithm>
#include <utility>

Json CPage::Evaluate(const std::string& frameId, const std::wstring& expression)
{
    const auto context = m_contexts.find(frameId);
    if (context == m_contexts.end() || m_bNextAwaited)
        return nullptr;
    const auto result =
        Call("Runtime.evaluate",
             {{"expression", ToUtf8(expression)}, {"contextId", context->second}, {"returnByValue", true}});
    if (!result || result->contains("exceptionDetails"))
        return nullptr;
    return GetObjectMember(*result, "result").value("value", Json());
}

Json CPage::MakeCall(const std::string& frameId, const char* pszFunction, Json arguments, bool bByValue) const
{
    const auto world = m_worlds.find(frameId);
    if (world == m_worlds.end())
        return nullptr;
    Json list = Json::array();
    for (Json& argument : arguments)
        list.push_back({{"value", std::move(argument)}});
    return {{"functionDeclaration", std::string("(...a) => bench.") + pszFunction + "(...a)"},
            {"executionContextId", world->second},
            {"arguments", std::move(list)},
            {"returnByValue", bByValue}};
}

std::optional<Json> CPage::CallScript(Json call)
{
    if (call.is_null() || m_bNextAwaited)
        return std::nullopt;
    const auto result = Call("Runtime.callFunctionOn", std::move(call));
    if (!result || result->contains("exceptionDetails"))
        return std::nullopt;
    return GetObjectMember(*result, "result");
}

std::optional<Json> CPage::Ask(const std::string& frameId, const char* pszFunction, Json arguments)
{
    const auto answer = CallScript(MakeCall(frameId, pszFunction, std::move(arguments), true));
    return answer ? std::optional(answer->value("value", Json())) : std::nullopt;
}

void CPage::Tell(const std::string& frameId, const char* pszFunction, Json arguments)
{
    Json call = MakeCall(frameId, pszFunction, std::move(arguments), true);
    if (!call.is_null())
        Post("Runtime.callFunctionOn", std::move(call));
}

std::string CPage::GetFrameOfElement(const std::string& frameId, int nElement)
{
    const auto element = CallScript(MakeCall(frameId, "element", {nElement}, false));
    if (!element)
        return {};
    const std::string objectId = GetNarrowText(*element, "objectId");
    const auto description = Call("DOM.describeNode", {{"objectId", objectId}});
    Post("Runtime.releaseObject", {{"objectId", objectId}});
    return description ? GetNarrowText(GetObjectMember(*description, "node"), "frameId") : std::string();
}

void CPage::OnExceptionThrown(const Json& params)
{
    const Json& details = GetObjectMember(params, "exceptionDetails");
    const int nContext = GetNumber(details, "executionContextId", 0);
    const auto context =
        std::find_if(m_contexts.begin(), m_contexts.end(), [=](const auto& each) { return each.second == nContext; });
    // A rejected promise is no error to this browser.
    if (context == m_contexts.end() || GetNarrowText(details, "text").find("in promise") != std::string::npos)
        return;
    std::wstring message = GetText(GetObjectMember(details, "exception"), "description");
    if (message.empty())
        message = GetText(details, "text");
    m_events.OnScriptError({.strFrameId = context->first,
                            .strMessage = message.substr(0, message.find(L'\n')),
                            .strUrl = GetText(details, "url"),
                            .nLine = GetNumber(details, "lineNumber", 0) + 1,
                            .nCharacter = GetNumber(details, "columnNumber", 0) + 1});
}

void CPage::OnBindingCalled(const Json& params)
{
    const int nContext = GetNumber(params, "executionContextId", 0);
    const auto world =
        std::find_if(m_worlds.begin(), m_worlds.end(), [=](const auto& each) { return each.second == nContext; });
    if (world == m_worlds.end())
        return;
    const std::string frameId = world->first;
    if (GetNarrowText(params, "name") == NavigateBinding)
        OnScriptLink(frameId, GetText(params, "payload"));
    else if (m_frames.IsTop(frameId))
        SetTitle(GetText(params, "payload"));
}

void CPage::OnScriptLink(const std::string& frameId, const std::wstring& url)
{
    if (m_events.OnBeforeNavigate({.strFrameId = frameId, .strUrl = url}))
        RunScript(frameId, ToUtf8(GetScriptOfUrl(url)));
}

void CPage::StopScripts()
{
    // It would come too late for this page and hit the next one.
    if (m_bNextAwaited)
        return;
    m_bScriptsStopped = true;
    Post("Emulation.setScriptExecutionDisabled", {{"value", true}});
}

void CPage::LetScriptsRun()
{
    if (std::exchange(m_bScriptsStopped, false))
        Post("Emulation.setScriptExecutionDisabled", {{"value", false}});
}
