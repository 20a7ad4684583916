#pragma once

#include <windows.h>

/// The device context of a window's client area, or of the screen for null.
class CWindowDC
{
public:
    explicit CWindowDC(HWND hWnd) : m_hWnd(hWnd), m_hDC(GetDC(hWnd)) {}
    ~CWindowDC() { ReleaseDC(m_hWnd, m_hDC); }
    CWindowDC(const CWindowDC&) = delete;
    CWindowDC& operator=(const CWindowDC&) = delete;
    operator HDC() const { return m_hDC; }

private:
    HWND m_hWnd;
    HDC m_hDC;
};

/// A device context that draws on a bitmap, which it doesn't own.
class CBitmapDC
{
public:
    CBitmapDC(HDC hModel, HBITMAP hBitmap) : m_hDC(CreateCompatibleDC(hModel)), m_hOld(SelectObject(m_hDC, hBitmap)) {}
    ~CBitmapDC()
    {
        SelectObject(m_hDC, m_hOld);
        DeleteDC(m_hDC);
    }
    CBitmapDC(const CBitmapDC&) = delete;
    CBitmapDC& operator=(const CBitmapDC&) = delete;
    operator HDC() const { return m_hDC; }

private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};

/// The painting of a window between BeginPaint and EndPaint.
class CPaintDC
{
public:
    explicit CPaintDC(HWND hWnd) : m_hWnd(hWnd) { BeginPaint(hWnd, &m_paint); }
    ~CPaintDC() { EndPaint(m_hWnd, &m_paint); }
    CPaintDC(const CPaintDC&) = delete;
    CPaintDC& operator=(const CPaintDC&) = delete;
    operator HDC() const { return m_paint.hdc; }

private:
    HWND m_hWnd;
    PAINTSTRUCT m_paint = {};
};
