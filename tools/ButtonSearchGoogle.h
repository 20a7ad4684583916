#pragma once

#include "tools/ButtonSearchWeb.h"

/// Sends the text of its box to the stored web search engine. The settings are read once, when the item is made.
class CButtonSearchGoogle : public CButtonSearchWeb
{
    DECLARE_DYNCREATE(CButtonSearchGoogle)

public:
    bool Initialize(CTrelvixWindow* pParent) override;

private:
    void ShowTitle(const std::wstring& strTitle);
};
