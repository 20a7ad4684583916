#include "tests/unit/tools/ZoomFixture.h"

ZoomWrappers GetZoomWrappers(const CFakeHtmlDocument& document)
{
    ZoomWrappers wrappers = document.GetMarkup()->GetElements(L"DIV");
    std::erase_if(wrappers, [](const auto& spElement) { return spElement->attributes[L"id"] != ZoomWrapperId; });
    return wrappers;
}

std::vector<std::wstring> GetZooms(const CFakeHtmlDocument& document)
{
    std::vector<std::wstring> zooms;
    for (const auto& spWrapper : GetZoomWrappers(document))
        zooms.push_back(spWrapper->style[L"zoom"]);
    return zooms;
}
