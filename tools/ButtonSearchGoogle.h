#pragma once

#include "tools/ButtonSearchWeb.h"

/// Sends the text of its box to the stored web search engine.
class CButtonSearchGoogle : public CButtonSearchWeb
{
    DECLARE_DYNCREATE(CButtonSearchGoogle)

public:
    bool Initialize(CTrelvixWindow* pParent) override;
};
