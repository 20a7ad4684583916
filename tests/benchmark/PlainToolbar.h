#pragma once

#include "band/ButtonIndex.h"
#include "framework/Handles.h"

#include <windows.h>
#include <commctrl.h>

#include <array>
#include <vector>

/// The toolbar with its default layout as a program would make it that calls the platform and nothing else: the same
/// windows, image lists, texts, buttons and boxes by the same messages, without classes, items, settings and
/// translation. What Trelvix takes is compared with it.
class CPlainToolbar
{
public:
    CPlainToolbar() = default;
    CPlainToolbar(const CPlainToolbar&) = delete;
    CPlainToolbar& operator=(const CPlainToolbar&) = delete;
    ~CPlainToolbar();

    /// Makes the toolbar inside the parent's window, under the manifest of this program.
    void Create(HWND hWndParent);
    /// Takes all buttons and boxes away and puts those of the layout there again.
    void Load();

private:
    void CreateWindows(HWND hWndParent);
    void SetImageLists();
    void Clear();
    void AddLabels();
    void PlaceItem(int nIndex);
    void PlaceBox(int nIndex);
    RECT GetLastRect() const;

    using CUniqueImageList = CUniqueHandle<HIMAGELIST, ImageList_Destroy>;

    HWND m_hWnd = nullptr;
    HWND m_hWndReflexion = nullptr;
    CUniqueImageList m_imageLists[3];
    std::array<INT_PTR, ButtonCount> m_labels = {};
    std::vector<HWND> m_boxes;
};
