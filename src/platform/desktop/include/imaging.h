// As much of a device's imaging component as is used here, under its own names, for systems that
// lack it. A device's own header takes the place of this one.
#pragma once

#include <windows.h>

#include <unknwn.h>

using PixelFormatID = int;
constexpr PixelFormatID PixelFormat32bppARGB = 0x26200A;

enum BufferDisposalFlag { BufferDisposalFlagNone };
enum InterpolationHint { InterpolationHintDefault };
enum ImageLockMode { ImageLockModeRead = 1 };

struct BitmapData {
  UINT Width;
  UINT Height;
  INT Stride;  // bytes from one row to the next
  PixelFormatID PixelFormat;
  void* Scan0;
  UINT_PTR Reserved;
};

// A picture that is decoded when its points are asked for.
struct IImage : IUnknown {};

// A picture's points.
struct IBitmapImage : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE GetSize(SIZE* size) = 0;
  // `rect` lies within the picture. What is locked is to be unlocked.
  virtual HRESULT STDMETHODCALLTYPE LockBits(const RECT* rect, UINT flags,
                                             PixelFormatID pixelFormat,
                                             BitmapData* lockedBitmapData) = 0;
  virtual HRESULT STDMETHODCALLTYPE UnlockBits(const BitmapData* lockedBitmapData) = 0;
};

struct IImagingFactory : IUnknown {
  // `buf` outlives the image.
  virtual HRESULT STDMETHODCALLTYPE CreateImageFromBuffer(const void* buf, UINT size,
                                                          BufferDisposalFlag disposalFlag,
                                                          IImage** image) = 0;
  // A width and height of 0 are the image's own.
  virtual HRESULT STDMETHODCALLTYPE CreateBitmapFromImage(IImage* image, UINT width, UINT height,
                                                          PixelFormatID pixelFormat,
                                                          InterpolationHint hints,
                                                          IBitmapImage** bitmap) = 0;
};

constexpr CLSID CLSID_ImagingFactory = {
    0x327abda8, 0x072b, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
constexpr IID IID_IImagingFactory = {
    0x327abda7, 0x072b, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

// A desktop's own knows no such class.
#define CoCreateInstance CreateDeviceInstance
HRESULT CreateDeviceInstance(REFCLSID rclsid, IUnknown* pUnkOuter, DWORD dwClsContext, REFIID riid,
                             void** ppv);
