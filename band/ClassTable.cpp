#include "band/ClassTable.h"

#include "band/ATLTrelvix.h"
#include "band/TrelvixMSHTMLUIHandler.h"
#include "resources/resource.h"

namespace
{
/// CATID_AppContainerCompatible: the browser may load the class in its enhanced protected mode.
constexpr CATID AppContainerCompatible = {0x59fb2056, 0xd625, 0x48d0, {0xa9, 0x44, 0x1a, 0x85, 0xb5, 0xab, 0x26, 0x40}};

const CComClassEntry s_classes[] = {
    {&CLSID_ATLTrelvix, IDR_ATLTRELVIX, &CreateComObject<CATLTrelvix>, &AppContainerCompatible},
    {&CLSID_TrelvixMSHTMLUIHandler, IDR_TRELVIXMSHTMLUIHANDLER, &CreateComObject<CTrelvixMSHTMLUIHandler>, nullptr},
};
} // namespace

std::span<const CComClassEntry> GetClassTable()
{
    return s_classes;
}
