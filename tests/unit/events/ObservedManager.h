#pragma once

#include "band/TVXEventManager.h"

/// The manager with its counters in sight.
class CObservedManager : public CTVXEventManager
{
public:
    using CTVXEventManager::CTVXEventManager;
    using CTVXEventManager::m_nDownloads;
    using CTVXEventManager::m_nNavigations;
    using CTVXEventManager::m_spActiveFrame;
    using CTVXEventManager::m_strPendingUrl;
};
