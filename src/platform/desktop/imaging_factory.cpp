// A device's imaging component, made of a desktop's.
#include <imaging.h>
#undef CoCreateInstance
#include <objbase.h>
#include <wincodec.h>

#include <utility>
#include <vector>

#include "win32/com.h"

namespace {

using tidewell::ComPointer;

// Knows its one interface and nothing else of itself.
template <typename Interface>
class ComObject : public Interface {
 public:
  virtual ~ComObject() = default;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** answer) override {
    *answer = nullptr;
    return E_NOINTERFACE;
  }

 private:
  ULONG references_ = 1;
};

class Image final : public ComObject<IImage> {
 public:
  explicit Image(ComPointer<IWICBitmapFrameDecode> frame) : frame_(std::move(frame)) {}
  IWICBitmapSource* Source() const { return frame_.Get(); }

 private:
  ComPointer<IWICBitmapFrameDecode> frame_;
};

class BitmapImage final : public ComObject<IBitmapImage> {
 public:
  HRESULT Read(IWICBitmapSource& source) {
    UINT width = 0, height = 0;
    const HRESULT sized = source.GetSize(&width, &height);
    if (FAILED(sized)) return sized;
    size_ = {static_cast<LONG>(width), static_cast<LONG>(height)};
    points_.resize(std::size_t{width} * height);
    const std::size_t bytes = points_.size() * sizeof(UINT32);
    return source.CopyPixels(nullptr, Stride(), static_cast<UINT>(bytes),
                             reinterpret_cast<BYTE*>(points_.data()));
  }

  HRESULT STDMETHODCALLTYPE GetSize(SIZE* size) override {
    *size = size_;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE LockBits(const RECT* rect, UINT, PixelFormatID pixelFormat,
                                     BitmapData* data) override {
    UINT32* first = points_.data() + rect->top * size_.cx + rect->left;
    *data = {static_cast<UINT>(rect->right - rect->left),
             static_cast<UINT>(rect->bottom - rect->top),
             static_cast<INT>(Stride()),
             pixelFormat,
             first,
             0};
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE UnlockBits(const BitmapData*) override { return S_OK; }

 private:
  UINT Stride() const { return static_cast<UINT>(size_.cx) * sizeof(UINT32); }

  SIZE size_{};
  std::vector<UINT32> points_;
};

// The desktop's own factory is created when it is first needed, because loading it takes a sixth of
// the program's start.
class ImagingFactory final : public ComObject<IImagingFactory> {
 public:
  HRESULT STDMETHODCALLTYPE CreateImageFromBuffer(const void* bytes, UINT size, BufferDisposalFlag,
                                                  IImage** image) override {
    HRESULT result = Start();
    ComPointer<IWICStream> stream;
    if (SUCCEEDED(result)) result = factory_->CreateStream(stream.Put());
    if (SUCCEEDED(result)) {
      result = stream->InitializeFromMemory(static_cast<BYTE*>(const_cast<void*>(bytes)),
                                            size);  // which it only reads
    }
    ComPointer<IWICBitmapDecoder> decoder;
    if (SUCCEEDED(result)) {
      result = factory_->CreateDecoderFromStream(stream.Get(), nullptr,
                                                 WICDecodeMetadataCacheOnDemand, decoder.Put());
    }
    ComPointer<IWICBitmapFrameDecode> frame;
    if (SUCCEEDED(result)) result = decoder->GetFrame(0, frame.Put());
    if (SUCCEEDED(result)) *image = new Image(std::move(frame));
    return result;
  }

  // In the image's own size and with straight transparency alone.
  HRESULT STDMETHODCALLTYPE CreateBitmapFromImage(IImage* image, UINT, UINT, PixelFormatID,
                                                  InterpolationHint,
                                                  IBitmapImage** bitmap) override {
    ComPointer<IWICFormatConverter> converter;
    HRESULT result = factory_->CreateFormatConverter(converter.Put());
    if (SUCCEEDED(result)) {
      result =
          converter->Initialize(static_cast<Image*>(image)->Source(), GUID_WICPixelFormat32bppBGRA,
                                WICBitmapDitherTypeNone, nullptr, 0, WICBitmapPaletteTypeCustom);
    }
    ComPointer<BitmapImage> read(new BitmapImage);
    if (SUCCEEDED(result)) result = read->Read(*converter.Get());
    if (SUCCEEDED(result)) *bitmap = std::exchange(*read.Put(), nullptr);
    return result;
  }

 private:
  HRESULT Start() {
    return factory_ ? S_OK
                    : CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                       IID_IWICImagingFactory, factory_.PutVoid());
  }

  ComPointer<IWICImagingFactory> factory_;
};

}  // namespace

HRESULT CreateDeviceInstance(REFCLSID rclsid, IUnknown* pUnkOuter, DWORD dwClsContext, REFIID riid,
                             void** ppv) {
  if (!IsEqualCLSID(rclsid, CLSID_ImagingFactory) || !IsEqualIID(riid, IID_IImagingFactory)) {
    return CoCreateInstance(rclsid, pUnkOuter, dwClsContext, riid, ppv);
  }
  *ppv = static_cast<IImagingFactory*>(new ImagingFactory);
  return S_OK;
}
