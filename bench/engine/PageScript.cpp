#include "bench/engine/Page.h"

Json CPage::Evaluate(const std::string& frameId, const std::wstring& expression)
{
    const auto context = m_contexts.find(frameId);
    if (context == m_contexts.end())
        return nullptr;
    const auto result =
        Call("Runtime.evaluate",
             {{"expression", ToUtf8(expression)}, {"contextId", context->second}, {"returnByValue", true}});
    if (!result || result->contains("exceptionDetails"))
        return nullptr;
    return GetObjectMember(*result, "result").value("value", Json());
}

std::optional<Json> CPage::CallScript(const std::string& frameId, const char* pszFunction, Json arguments,
                                      bool bByValue)
{
    const auto world = m_worlds.find(frameId);
    if (world == m_worlds.end())
        return std::nullopt;
    Json list = Json::array();
    for (Json& argument : arguments)
        list.push_back({{"value", std::move(argument)}});
    const auto result = Call("Runtime.callFunctionOn",
                             {{"functionDeclaration", std::string("(...a) => bench.") + pszFunction + "(...a)"},
                              {"executionContextId", world->second},
                              {"arguments", std::move(list)},
                              {"returnByValue", bByValue}});
    if (!result || result->contains("exceptionDetails"))
        return std::nullopt;
    return GetObjectMember(*result, "result");
}

std::optional<Json> CPage::Ask(const std::string& frameId, const char* pszFunction, Json arguments)
{
    const auto answer = CallScript(frameId, pszFunction, std::move(arguments), true);
    return answer ? std::optional(answer->value("value", Json())) : std::nullopt;
}

std::string CPage::GetFrameOfElement(const std::string& frameId, int nElement)
{
    const auto element = CallScript(frameId, "element", {nElement}, false);
    if (!element)
        return {};
    const std::string objectId = GetNarrowText(*element, "objectId");
    const auto description = Call("DOM.describeNode", {{"objectId", objectId}});
    Post("Runtime.releaseObject", {{"objectId", objectId}});
    return description ? GetNarrowText(GetObjectMember(*description, "node"), "frameId") : std::string();
}
