#pragma once

#include <span>

/// A page of the bench that menus and links bars name.
struct CListedPage
{
    const wchar_t* pszFile;
    const wchar_t* pszTitle;
};

/// The pages in the order of the menu; the first is the start page.
std::span<const CListedPage> GetListedPages();
