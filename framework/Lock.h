#pragma once

#include <windows.h>

/// Holds a lock together with other readers for as long as it lives.
class CSharedLock
{
public:
    explicit CSharedLock(SRWLOCK& lock) : m_lock(lock) { AcquireSRWLockShared(&m_lock); }
    ~CSharedLock() { ReleaseSRWLockShared(&m_lock); }
    CSharedLock(const CSharedLock&) = delete;
    CSharedLock& operator=(const CSharedLock&) = delete;

private:
    SRWLOCK& m_lock;
};

/// Holds a lock alone for as long as it lives.
class CExclusiveLock
{
public:
    explicit CExclusiveLock(SRWLOCK& lock) : m_lock(lock) { AcquireSRWLockExclusive(&m_lock); }
    ~CExclusiveLock() { ReleaseSRWLockExclusive(&m_lock); }
    CExclusiveLock(const CExclusiveLock&) = delete;
    CExclusiveLock& operator=(const CExclusiveLock&) = delete;

private:
    SRWLOCK& m_lock;
};
