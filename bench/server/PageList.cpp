#include "bench/server/PageList.h"

namespace
{
constexpr CListedPage listedPages[] = {
    {L"start.html", L"Start"},
    {L"text.html", L"Long Text"},
    {L"frames.html", L"Page with Frames"},
    {L"frameset.html", L"Frameset"},
    {L"forms.html", L"Forms"},
    {L"images.html", L"Images"},
    {L"languages.html", L"Other Scripts"},
    {L"links.html", L"Links"},
    {L"script-error.html", L"Script Errors"},
    {L"commands.html", L"Commands to the Toolbar"},
};
} // namespace

std::span<const CListedPage> GetListedPages()
{
    return listedPages;
}
