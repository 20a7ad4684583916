#include "bench/window/Picture.h"

#include "bench/window/DeviceContext.h"

#include <wincodec.h>
#include <wrl/client.h>

using Microsoft::WRL::ComPtr;

namespace
{
ComPtr<IWICImagingFactory> GetFactory()
{
    ComPtr<IWICImagingFactory> spFactory;
    CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&spFactory));
    return spFactory;
}

ComPtr<IWICBitmapSource> OpenPicture(IWICImagingFactory* pFactory, const std::string& file)
{
    ComPtr<IWICStream> spStream;
    ComPtr<IWICBitmapDecoder> spDecoder;
    ComPtr<IWICBitmapFrameDecode> spFrame;
    ComPtr<IWICFormatConverter> spConverter;
    auto* const pBytes = reinterpret_cast<BYTE*>(const_cast<char*>(file.data()));
    if (FAILED(pFactory->CreateStream(&spStream)) ||
        FAILED(spStream->InitializeFromMemory(pBytes, static_cast<DWORD>(file.size()))) ||
        FAILED(
            pFactory->CreateDecoderFromStream(spStream.Get(), nullptr, WICDecodeMetadataCacheOnDemand, &spDecoder)) ||
        FAILED(spDecoder->GetFrame(0, &spFrame)) || FAILED(pFactory->CreateFormatConverter(&spConverter)) ||
        FAILED(spConverter->Initialize(spFrame.Get(), GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone, nullptr, 0,
                                       WICBitmapPaletteTypeCustom)))
        return nullptr;
    return spConverter;
}

/// A bitmap of 32 bits whose first row is the uppermost, with its pixels.
CUniqueBitmap CreateBitmap(UINT cx, UINT cy, void** ppPixels)
{
    BITMAPINFO info = {};
    info.bmiHeader = {
        sizeof info.bmiHeader, static_cast<LONG>(cx), -static_cast<LONG>(cy), 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    return CUniqueBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, ppPixels, nullptr, 0));
}

bool WriteFrame(IWICBitmapEncoder* pEncoder, IWICBitmapSource* pPicture)
{
    ComPtr<IWICBitmapFrameEncode> spFrame;
    return SUCCEEDED(pEncoder->CreateNewFrame(&spFrame, nullptr)) && SUCCEEDED(spFrame->Initialize(nullptr)) &&
           SUCCEEDED(spFrame->WriteSource(pPicture, nullptr)) && SUCCEEDED(spFrame->Commit()) &&
           SUCCEEDED(pEncoder->Commit());
}
} // namespace

CUniqueBitmap DecodePicture(const std::string& file)
{
    const ComPtr<IWICImagingFactory> spFactory = GetFactory();
    const ComPtr<IWICBitmapSource> spPicture = spFactory ? OpenPicture(spFactory.Get(), file) : nullptr;
    UINT cx = 0;
    UINT cy = 0;
    if (!spPicture || FAILED(spPicture->GetSize(&cx, &cy)))
        return nullptr;
    void* pPixels = nullptr;
    CUniqueBitmap bitmap = CreateBitmap(cx, cy, &pPixels);
    if (!bitmap || FAILED(spPicture->CopyPixels(nullptr, cx * 4, cx * cy * 4, static_cast<BYTE*>(pPixels))))
        return nullptr;
    return bitmap;
}

bool SavePicture(HBITMAP hBitmap, const std::wstring& path)
{
    const ComPtr<IWICImagingFactory> spFactory = GetFactory();
    ComPtr<IWICBitmap> spPicture;
    ComPtr<IWICStream> spStream;
    ComPtr<IWICBitmapEncoder> spEncoder;
    return spFactory &&
           SUCCEEDED(spFactory->CreateBitmapFromHBITMAP(hBitmap, nullptr, WICBitmapIgnoreAlpha, &spPicture)) &&
           SUCCEEDED(spFactory->CreateStream(&spStream)) &&
           SUCCEEDED(spStream->InitializeFromFilename(path.c_str(), GENERIC_WRITE)) &&
           SUCCEEDED(spFactory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &spEncoder)) &&
           SUCCEEDED(spEncoder->Initialize(spStream.Get(), WICBitmapEncoderNoCache)) &&
           WriteFrame(spEncoder.Get(), spPicture.Get());
}

CUniqueBitmap CaptureScreen(const RECT& rect)
{
    const int cx = rect.right - rect.left;
    const int cy = rect.bottom - rect.top;
    void* pPixels = nullptr;
    CUniqueBitmap bitmap = CreateBitmap(cx, cy, &pPixels);
    if (!bitmap)
        return nullptr;
    const CWindowDC screen(nullptr);
    const CBitmapDC memory(screen, bitmap.get());
    BitBlt(memory, 0, 0, cx, cy, screen, rect.left, rect.top, SRCCOPY);
    return bitmap;
}
